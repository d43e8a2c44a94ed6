#pragma once

#include <QVector>
#include <QWidget>

class QKeySequence;
class QToolButton;
class QHBoxLayout;

/// The toolbar of a screen: keys with icon and caption, told apart by their key. A press leaves the focus
/// with the field being filled in. Keys without a letter are reached with Tab.
class Toolbar : public QWidget {
    Q_OBJECT

public:
    explicit Toolbar(QWidget* parent = nullptr);

    /// `icon` is the name of a picture among the program's own, without folder and ending.
    QToolButton* addKey(const QString& key, const QString& caption, const QString& tip, const QString& icon);
    void addSeparator();
    QToolButton* key(const QString& key) const; ///< null if there is none
    void setKeyEnabled(const QString& key, bool on);
    /// Keys that want a letter which others around the toolbar have do without, and show none underlined.
    void yieldLetters(const QVector<QKeySequence>& letters);

Q_SIGNALS:
    void ButtonClick(const QString& key);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool hasShortcut(const QKeySequence& shortcut) const;
    static void setCaption(QToolButton* key, const QString& caption);

    QHBoxLayout* m_row;
};
