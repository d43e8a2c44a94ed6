#pragma once

#include <QComboBox>
#include <QElapsedTimer>

/// A drop-down list. Click is emitted when the user picks an entry, even the selected one, and when the
/// program changes the selection.
class ComboBox : public QComboBox {
    Q_OBJECT

public:
    enum class Order { AsAdded, Sorted };
    enum class Kind { DropDownList, Editable };

    explicit ComboBox(QStringView name, QWidget* parent = nullptr, Kind kind = Kind::DropDownList,
                      Order order = Order::AsAdded);

    /// Adds at the end, or with Order::Sorted at its place in the German order, regardless of case. The
    /// selection stays.
    void AddItem(const QString& text);
    /// Selects the entry of this text; an empty text selects none. Error 383 if a drop-down list has no such
    /// entry. An editable one takes any text.
    void setText(const QString& text);
    /// -1 selects none. Error 380 if there is no such entry.
    void setListIndex(int index);

    /// As its widest entry, but a single long name does not widen the screen for all, nor the frame.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// Opens the list as wide as its entries need, up to the width of the desktop.
    void showPopup() override;

Q_SIGNALS:
    void Click();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QSize bounded(QSize hint, int characters) const;

    Order m_order;
    QElapsedTimer m_lastLetter; ///< since the last letter typed to find an entry by its name
};
