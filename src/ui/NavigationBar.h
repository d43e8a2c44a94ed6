#pragma once

#include <QPointer>
#include <QToolButton>
#include <QVector>
#include <QWidget>

class QVBoxLayout;

/// An item of the bar. It keeps track of the window that it brings forward.
class BarItem : public QToolButton {
    Q_OBJECT

public:
    BarItem(const QString& key, const QString& caption, const QString& icon, QWidget* parent);

    const QString& key() const { return m_key; }
    void takeWindow(QWidget* window) { m_window = window; }
    QWidget* boundWindow() const { return m_window; }

private:
    QString m_key;
    QPointer<QWidget> m_window;
};

/// A group of items under a heading.
class BarGroup : public QWidget {
    Q_OBJECT

public:
    BarGroup(const QString& caption, QWidget* parent);

    const QString& caption() const { return m_caption; }
    BarItem* addItem(const QString& key, const QString& caption, const QString& icon);
    BarItem* item(const QString& key) const; ///< null if there is none
    QVector<BarItem*> items() const { return m_items; }
    void removeItem(const QString& key); ///< one that is not there is left alone

Q_SIGNALS:
    void itemClicked(const QString& key);

private:
    QString m_caption;
    QVector<BarItem*> m_items;
    QVBoxLayout* m_column;
};

/// The navigation bar at the left of the frame: all groups stand open, one below the other.
class NavigationBar : public QWidget {
    Q_OBJECT

public:
    explicit NavigationBar(const QString& name, QWidget* parent = nullptr);

    BarGroup* addGroup(const QString& caption);
    BarGroup* group(const QString& caption) const;
    QVector<BarGroup*> groups() const { return m_groups; }
    BarItem* item(const QString& key) const; ///< in whichever group; null if there is none
    /// The group whose first item takes the focus when the bar does.
    void setCurrentGroup(int index);
    /// Room that an item takes at least, in per cent of its own height; tightens or loosens the bar.
    void setItemSpacing(int spacing);
    /// Shows an item as the one whose screen is in front; null for none.
    void setCurrentItem(BarItem* item);

Q_SIGNALS:
    void itemClicked(const QString& key);

private:
    QVector<BarGroup*> m_groups;
    int m_currentGroup = 0;
    QVBoxLayout* m_column;
};
