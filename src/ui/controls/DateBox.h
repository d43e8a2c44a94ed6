#pragma once

#include "Value.h"

#include <QComboBox>
#include <QPointer>
#include <optional>

class QCalendarWidget;

/// One date, typed or picked from a calendar that the arrow, F4 or Alt+Down open; the keys Up and Down go day
/// by day. It is typed as a German user writes dates (1.2.26, 1,2,2026, 01022026, 1.2. for this year) and
/// stands as 01.02.2026 once the box is left.
class DateBox : public QComboBox {
    Q_OBJECT

public:
    explicit DateBox(const QString& name, QWidget* parent = nullptr);

    /// What was put in, with its time of day and also where no calendar has it, until a user changes it.
    /// While the text is no date it stays what it was last.
    Date date() const;
    /// The empty date and one outside the years 100 to 9999 stand as an empty text.
    void setDate(Date date);
    /// False while what somebody typed is no date.
    bool isReadable() const;

    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    std::optional<QDate> typedDay() const;
    void settle();
    void step(int days);
    void makeCalendar();

    Date m_date;
    QString m_shown;         ///< how m_date stands in the box
    bool m_hasFocus = false; ///< also while a menu or another window borrows it
    QPointer<QCalendarWidget> m_calendar;
};
