#pragma once

#include <QPointer>
#include <QToolButton>
#include <QVector>
#include <QWidget>

class QScrollArea;
class QVBoxLayout;

/// An item of the bar. Knows the window that it brings forward. The caption may have two lines; "&&" in it
/// shows one ampersand, and nothing in it is a mnemonic.
class BarItem : public QToolButton {
    Q_OBJECT

public:
    BarItem(const QString& key, const QString& caption, const QString& icon, QWidget* parent);

    const QString& key() const { return m_key; }
    void takeWindow(QWidget* window) { m_window = window; }
    QWidget* boundWindow() const { return m_window; }
    /// The caption as shown.
    const QString& caption() const { return m_caption; }
    void setSpacing(int percent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void neighbourWanted(int step); ///< 1 is the next item down, -1 the next one up

protected:
    void nextCheckState() override {} ///< a click does not check the item; only setCurrentItem() does
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString m_key;
    QString m_caption;
    QPointer<QWidget> m_window;
    int m_spacing = 100;
};

/// A group of items under a heading. Stays when its last item is removed.
class BarGroup : public QWidget {
    Q_OBJECT

public:
    BarGroup(const QString& caption, QWidget* parent);

    const QString& caption() const { return m_caption; }
    BarItem* addItem(const QString& key, const QString& caption, const QString& icon);
    BarItem* item(const QString& key) const; ///< null if there is none
    QVector<BarItem*> items() const { return m_items; }
    void removeItem(const QString& key); ///< does nothing if there is none
    void setItemSpacing(int percent);

Q_SIGNALS:
    void itemClicked(const QString& key);
    void itemsChanged();
    void neighbourWanted(BarItem* from, int step);

private:
    QString m_caption;
    QVector<BarItem*> m_items;
    QVBoxLayout* m_column;
    int m_spacing = 100;
};

/// The navigation bar at the left of the frame: all groups open, one below the other. Only one item at a time
/// is in the tab order; the arrow keys go from item to item.
class NavigationBar : public QWidget {
    Q_OBJECT

public:
    explicit NavigationBar(const QString& name, QWidget* parent = nullptr);

    BarGroup* addGroup(const QString& caption);
    BarGroup* group(const QString& caption) const; ///< null if there is none
    QVector<BarGroup*> groups() const { return m_groups; }
    BarItem* item(const QString& key) const; ///< in whichever group; null if there is none
    QVector<BarItem*> items() const;         ///< of all groups, as they stand
    /// The first item of the current group, or of the bar if that group is empty; null if there is none.
    BarItem* firstItem() const;
    /// The group whose first item takes the focus when the bar does.
    void setCurrentGroup(int index);
    /// Sets the height of all items in per cent of their natural height, but never less than their text
    /// needs.
    void setItemSpacing(int spacing);
    /// Marks the item whose screen is in front; null marks none.
    void setCurrentItem(BarItem* item);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void itemClicked(const QString& key);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void setTabStop(BarItem* item);
    void renewTabStop();
    void goToNeighbour(BarItem* from, int step);

    QVector<BarGroup*> m_groups;
    QPointer<BarItem> m_current;
    int m_currentGroup = 0;
    int m_spacing = 100;
    QScrollArea* m_scroll;
    QWidget* m_face;
    QVBoxLayout* m_column;
};
