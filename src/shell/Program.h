#pragma once

#include "RuntimeError.h"

#include <QObject>

/// One run of the program in one program folder, from the start-up to the end. Before start() set the clock,
/// the print dialogs and the office programs.
class Program : public QObject {
    Q_OBJECT

public:
    explicit Program(const QString& folder);
    ~Program() override;

    static Program& current();

    /// Runs the start-up until it waits for the user or fails.
    void start();
    bool isRunning() const { return m_running; }
    /// Ends the program: removes every screen, closes the database file and copies it into the folder of
    /// copies. Shows a message box if the copy could not be made. May be called from any handler.
    void finish();
    /// As finish(), but without the message box. For the end of the desktop session, when no user can read
    /// it.
    void finishUnseen();

Q_SIGNALS:
    void ended();

protected:
    /// Ends the program first if the desktop ends the application, even while a message box waits: otherwise
    /// its routine would take the closing of the message box for an answer. Opens the handbook on F1.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fail(const RuntimeError& error);
    /// False if the program does not run.
    bool letGo();

    bool m_running = false;
};
