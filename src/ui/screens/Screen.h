#pragma once

#include "EventGuard.h"

#include <QPointer>
#include <QWidget>

class QEventLoop;
class QKeyEvent;

/// A window of the program: one instance of each at most, made on first use, reached by its class.
/// Controls are named members and carry their name as objectName, as does the screen itself.
class Screen : public QWidget {
    Q_OBJECT

public:
    /// `name` becomes the objectName, `caption` the window's title.
    Screen(const QString& name, const QString& caption);
    ~Screen() override;

    // The events of a screen. They run guarded (see runEvent); overriding is optional.
    virtual void Form_Load() {}       ///< once, right after the instance is registered
    virtual void Form_Activate() {}   ///< came to the front of the frame
    virtual void Form_Deactivate() {} ///< another screen came to the front, or it was hidden there
    /// Shown, uncovered or resized: the whole face is painted anew. Not for the small updates in between,
    /// such as a blinking caret. Runs right after the painting, so that a handler may show a box.
    virtual void Form_Paint() {}
    virtual void Form_Unload() {} ///< about to be destroyed by unload()
    /// Sees each key before the focused control does; true swallows it. A key held down is seen once.
    virtual bool Form_KeyDown(int /*key*/, Qt::KeyboardModifiers /*modifiers*/) { return false; }
    /// The user closes it by its border. Default: a modal screen or one on the stage is hidden, one in a
    /// window of its own is unloaded.
    virtual void Form_QueryUnload();

    /// Brings it to the front of the stage, or as a window of its own where it stands alone. Without a stage
    /// it stays hidden.
    void Show();
    /// As a modal window of its own above the frame; returns when it is hidden or unloaded. Neither activates
    /// nor deactivates the screen below.
    void ShowModal();
    /// As a window of its own that lies above another one and leaves it usable; for screens that stand alone.
    void ShowAbove(QWidget* window);
    void Hide();
    bool isModalNow() const { return m_modalLoop != nullptr; }
    /// True if it stands in a window of its own (login, Info) instead of on the stage.
    bool isOwnWindow() const { return m_ownWindow; }

    /// The one instance of another screen. Stands here since QWidget::screen() would hide the free function
    /// of this name from all screens.
    template<typename T>
    static T& screen();

    /// The pointer over the screen: an hourglass while a routine works, the arrow otherwise.
    void setHourglass(bool on);
    bool hasHourglass() const { return m_hourglass; }

protected:
    /// For a screen that needs no frame, or that must not cover what lies there.
    void standAlone() { m_ownWindow = true; }

    /// Connects a control's signal to a handler that runs guarded.
    template<typename Sender, typename Signal, typename Handler>
    void on(Sender* sender, Signal signal, Handler handler) {
        connect(sender, signal, this,
                [handler](auto... arguments) { runEvent([&] { handler(arguments...); }); });
    }

    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override; ///< Enter presses the button that has the focus
    bool eventFilter(QObject* watched, QEvent* event) override; ///< key preview, installed on all controls
    void childEvent(QChildEvent* event) override;

private:
    void showAsWindow();
    void centreOn(const QRect& place);
    void watch(QObject* control);
    void unwatch(QObject* control);
    bool previewKey(QWidget* control, QKeyEvent* event);
    bool isOnItsWay(const QWidget* control, const QKeyEvent* event) const;

    QEventLoop* m_modalLoop = nullptr;
    bool m_ownWindow = false;
    bool m_hourglass = false;
    bool m_paintPending = false;
    bool m_placed = false;
    const QKeyEvent* m_key = nullptr; ///< the key on its way from the focused control up; never followed
    QPointer<QWidget> m_keyAt;
};
