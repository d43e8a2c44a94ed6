#pragma once

#include "EventGuard.h"

#include <QPointer>
#include <QWidget>

class QEventLoop;

/// A screen of the program: at most one instance of each class, made on first use, reached by the<T>().
/// Controls are named members and have their name as objectName, as has the screen itself.
class Screen : public QWidget {
    Q_OBJECT

public:
    /// `name` becomes the objectName, `caption` the window's title.
    Screen(const QString& name, const QString& caption);
    ~Screen() override;

    // The events of a screen. They run guarded (see runEvent); overriding is optional.
    virtual void Form_Load() {}       ///< once, right after the instance is registered
    virtual void Form_Activate() {}   ///< came to the front of the frame
    virtual void Form_Deactivate() {} ///< another screen came to the front, or this one was hidden there
    /// The whole screen was painted, since it was shown, uncovered or resized. Does not come for small
    /// updates such as a blinking caret. Runs right after the painting, so it may show a message box.
    virtual void Form_Paint() {}
    virtual void Form_Unload() {} ///< about to be destroyed by unload()
    /// Gets each key before the focused control does; true swallows it. A key held down comes once.
    virtual bool Form_KeyDown(int /*key*/, Qt::KeyboardModifiers /*modifiers*/) { return false; }
    /// The user closed the screen by its border. Default: hides a modal screen or one on the stage, unloads
    /// one in a window of its own.
    virtual void Form_QueryUnload();

    /// Brings the screen to the front of the stage, or shows it as a window of its own after standAlone().
    /// Without a stage a screen for it stays hidden.
    void Show();
    /// Shows the screen as a modal window above the frame. Returns when it is hidden or unloaded. Does not
    /// deactivate the screen below.
    void ShowModal();
    /// Shows the screen as a window above another one, which stays usable. Only after standAlone().
    void ShowAbove(QWidget* window);
    void Hide();
    bool isModalNow() const { return m_modalLoop != nullptr; }

    // The record that stands open: what is saved changes it instead of adding one. It is given up after each
    // press in a toolbar and when another screen comes to the front; no screen does anything for that.

    /// Opens the record of this number, which stands in this row of the grid. An empty number opens none:
    /// what was not loaded cannot be changed.
    void openRecord(const QString& number, int row);
    /// What is saved next is a new record.
    void giveUpRecord() { m_openNumber.clear(); }
    bool isEditing() const { return !m_openNumber.isEmpty(); }
    bool keepsRecord() const { return m_keepsRecord; }
    bool isForReading() const { return m_forReading; }
    /// The row of the grid that was last opened or pressed.
    int gridRow() const { return m_gridRow; }
    void setGridRow(int row) { m_gridRow = row; }

protected:
    /// Gives the screen a window of its own. Call in the constructor of a screen that needs no frame, or that
    /// must not cover the screens in the frame.
    void standAlone() { m_ownWindow = true; }
    /// Keeps the record open while other screens are in front, until a press in a toolbar or a record opened
    /// on another screen that keeps its own. Call in the constructor.
    void keepRecord() { m_keepsRecord = true; }
    /// Lets a press in the toolbar leave the records of other screens open. Call in the constructor of a
    /// screen that only shows.
    void standForReading() { m_forReading = true; }

    /// Connects a control's signal to a handler that runs guarded.
    template<typename Sender, typename Signal, typename Handler>
    void on(Sender* sender, Signal signal, Handler handler) {
        connect(sender, signal, this,
                [handler](auto... arguments) { runEvent([&] { handler(arguments...); }); });
    }

    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showAsWindow();

    QEventLoop* m_modalLoop = nullptr;
    bool m_ownWindow = false;
    bool m_keepsRecord = false;
    bool m_forReading = false;
    QString m_openNumber; ///< of the record that stands open; empty if none does
    int m_gridRow = 0;
    bool m_paintPending = false;
    bool m_placed = false;
};
