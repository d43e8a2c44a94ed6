#pragma once

#include <QPointer>
#include <QVector>
#include <QWidget>

class Screen;

/// The inside of the frame. The screens lie one upon the other; the front one fills the stage. The stage, not
/// the window system, activates screens: a screen is activated when it comes to the front, and deactivated
/// when another one does or when it is hidden while in front. A record that stands open on it is given up
/// then (see Screen::keepRecord).
///
/// Form_Activate and Form_Deactivate run after the stage has changed, so they may bring forward, withdraw or
/// unload screens. Then only the screen in front at last is activated.
class Stage : public QWidget {
    Q_OBJECT

public:
    explicit Stage(QWidget* parent = nullptr);
    ~Stage() override;

    /// The stage of the frame, or null before there is one.
    static Stage* current();
    /// The window above which a box, or this window of a modal screen, is to open; null if there is none.
    static QWidget* windowBelow(const QWidget* window = nullptr);

    void bringToFront(Screen* screen);
    /// Hides a screen, one of its own or another. If it was in front, the one below comes to the front.
    void withdraw(Screen* screen);
    Screen* front() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void frontChanged(Screen* front);

protected:
    // While the frame is hidden no screen is activated or deactivated. Its showing activates the front one.
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void uncover(Screen* screen);
    void focusInto(Screen* screen);
    void settle();

    QVector<QPointer<Screen>> m_order; ///< back to front
    QPointer<Screen> m_activated;
    bool m_active = false; ///< the frame is shown
};
