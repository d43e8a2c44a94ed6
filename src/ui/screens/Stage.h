#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

class Screen;

/// The inside of the frame, where the screens lie one upon the other; the front one fills it. Activation
/// belongs to the stage, not to the window system: a screen is activated when it comes to the front and
/// deactivated when another one does or when it is hidden while in front.
///
/// The events run when the stage has already changed, so their handlers may bring forward, withdraw or unload
/// screens in turn; then only what is in front at last is activated.
class Stage : public QWidget {
    Q_OBJECT

public:
    explicit Stage(QWidget* parent = nullptr);
    ~Stage() override;

    /// The stage in force, or null before the frame stands.
    static Stage* current();

    void bringToFront(Screen* screen);
    /// Takes a screen away; the one below comes to the front.
    void withdraw(Screen* screen);
    Screen* front() const;
    bool shows(const Screen* screen) const;

    /// While off (frame hidden) screens come and go without being activated; switching on activates the
    /// front. A new stage is off.
    void setActive(bool on);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void frontChanged(Screen* front);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void uncover(Screen* screen);
    void focusInto(Screen* screen);
    void announce();
    void settle();

    QVector<QPointer<Screen>> m_order; ///< back to front
    QPointer<Screen> m_activated;
    QPointer<Screen> m_announced;
    bool m_active = false;
};
