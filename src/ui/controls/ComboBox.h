#pragma once

#include <QComboBox>
#include <QElapsedTimer>

/// A drop-down list. Its click runs when the user picks an entry, also the one that stands there already, and
/// when the program changes the selection.
class ComboBox : public QComboBox {
    Q_OBJECT

public:
    enum class Order { AsAdded, Sorted };
    enum class Kind { DropDownList, Editable };

    explicit ComboBox(const QString& name, Order order = Order::AsAdded, Kind kind = Kind::DropDownList,
                      QWidget* parent = nullptr);

    int ListCount() const { return count(); }
    int ListIndex() const { return currentIndex(); }
    void Clear(); ///< no click
    /// At its place in the German order, regardless of case, or at the end. The selection stays.
    void AddItem(const QString& text);
    void InsertItem(int index, const QString& text);
    QString Text() const { return currentText(); }
    /// Selects the entry of this text; error 383 if a drop-down list has none such (an empty text selects
    /// nothing). An editable one takes any text.
    void setText(const QString& text);
    /// -1 selects none; error 380 beyond the list.
    void setListIndex(int index);

    /// As its widest entry, but a single long name does not widen the screen for all, nor the frame.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// The list hangs open as wide as its entries need, up to the room on the desktop.
    void showPopup() override;

Q_SIGNALS:
    void Click();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    int placeFor(const QString& text) const;
    int indexOf(const QString& text) const;
    QSize bounded(QSize hint, int characters) const;

    Order m_order;
    QElapsedTimer m_lastLetter; ///< of an entry that is looked for by typing its name
};
