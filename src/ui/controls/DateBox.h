#pragma once

#include "FocusMove.h"
#include "Value.h"

#include <QComboBox>
#include <optional>

class QCalendarWidget;

/// A box for one date, typed or picked from a calendar. The arrow, F4 or Alt+Down open the calendar; the keys
/// Up and Down go day by day. Reads dates as a German user types them (1.2.26, 1,2,2026, 01022026, 1.2. for
/// this year) and shows them as 01.02.2026 once the box is left.
class DateBox : public QComboBox {
    Q_OBJECT

public:
    explicit DateBox(QStringView name, QWidget* parent = nullptr);

    /// The date given to setDate(), with its time of day and even if no calendar has it, until a user changes
    /// it. While the text is no date: the last one that was.
    Date date() const;
    /// The empty date and dates outside the years 100 to 9999 show as an empty text.
    void setDate(Date date);
    /// False while the typed text is no date.
    bool isReadable() const;

    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    std::optional<QDate> typedDay() const;
    QDate shownDay() const; ///< today if the box shows none
    void settle();
    void step(int days);
    void makeCalendar();

    Date m_date;
    FocusState m_focus;
    QCalendarWidget* m_calendar = nullptr;
};
