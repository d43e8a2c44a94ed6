#pragma once

#include <QToolButton>
#include <QVector>
#include <QWidget>

class QScrollArea;

/// An item of the bar. The caption may have two lines; "&&" in it shows one ampersand, and nothing in it is a
/// mnemonic.
class BarItem : public QToolButton {
    Q_OBJECT

public:
    BarItem(const QString& key, const QString& caption, const QString& icon, QWidget* parent);

    QString key() const { return objectName(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void nextCheckState() override {} ///< a click does not check the item; only setCurrentItem() does
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_caption; ///< as shown
};

/// The navigation bar at the left of the frame: all groups open, one below the other, each under its heading.
/// Only one item at a time is in the tab order; the arrow keys go from item to item.
class NavigationBar : public QWidget {
    Q_OBJECT

public:
    explicit NavigationBar(QStringView name, QWidget* parent = nullptr);

    /// Adds an item at the end of the group, which is made if there is none of this caption.
    void addItem(const QString& group, const QString& key, const QString& caption, const QString& icon);
    /// Does nothing if there is no such item. Its group stays, even without items.
    void removeItem(const QString& key);
    /// The groups, from the top. The accessible name of each is its caption.
    const QVector<QWidget*>& groups() const { return m_groups; }
    BarItem* item(const QString& key) const; ///< in whichever group; null if there is none
    QVector<BarItem*> items() const;         ///< of all groups, as they stand
    /// The first item of the current group, or of the bar if that group is empty; null if there is none.
    BarItem* firstItem() const;
    /// The group whose first item takes the focus when the bar does.
    void setCurrentGroup(int index);
    /// Marks the item whose screen is in front; null marks none.
    void setCurrentItem(const BarItem* item);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void itemClicked(const QString& key);

protected:
    bool eventFilter(QObject* item, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* group(const QString& caption);
    void setTabStop(BarItem* item);
    void renewTabStop();

    QVector<QWidget*> m_groups;
    int m_currentGroup = 0;
    QScrollArea* m_scroll;
    QWidget* m_face;
};
