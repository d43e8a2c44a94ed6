#pragma once

#include <QVector>
#include <QWidget>
#include <functional>
#include <initializer_list>

class QKeySequence;
class QToolButton;
class QHBoxLayout;

/// The toolbar of a screen: keys with icon and caption. A press leaves the focus with the field being filled
/// in. Keys without a letter are reached with Tab.
class Toolbar : public QWidget {
    Q_OBJECT

public:
    using Handler = std::function<void()>;
    /// `icon` is the name of a picture among the program's own, without folder and ending.
    struct Key {
        QString key;
        QString caption;
        QString tip;
        QString icon;
        Handler handler; ///< runs guarded (see runEvent)
    };

    explicit Toolbar(QWidget* parent = nullptr, std::initializer_list<Key> keys = {});

    QToolButton* addKey(const Key& key);
    /// Adds keys with separators between them, and before the first one if it is not the toolbar's first.
    void addKeys(std::initializer_list<Key> keys);
    void addSeparator();
    /// Adds another control behind the keys so far.
    void add(QWidget* control);
    QToolButton* key(const QString& key) const; ///< null if there is none
    void setKeyEnabled(const QString& key, bool on);
    /// Takes these shortcut letters from the buttons, since controls around the toolbar have them. Such a
    /// button shows no letter underlined.
    void yieldLetters(const QVector<QKeySequence>& letters);

Q_SIGNALS:
    void Pressed(); ///< the handler of a key has run

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    static void setCaption(QToolButton* key, const QString& caption);

    QHBoxLayout* m_row;
};
