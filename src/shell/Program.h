#pragma once

#include "RuntimeError.h"

#include <QObject>

/// One life of the program over one program folder, from the start-up to its end. The clock, the boxes and
/// what else stands around the program are put in force by whoever makes it.
class Program : public QObject {
    Q_OBJECT

public:
    explicit Program(const QString& folder);
    ~Program() override;

    static Program& current();

    /// Runs the start-up to the point where it waits for the user, or to its failure.
    void start();
    bool isRunning() const { return m_running; }
    /// Ends the program: every screen goes, the database file is let go and copied into the folder for that.
    /// Safe from within any handler. A box says so if the copy could not be made.
    void finish();
    /// As above without the box, where nobody is left to read it: the desktop ends the session.
    void finishUnseen();

Q_SIGNALS:
    void ended();

protected:
    /// The desktop may end the application while a box waits for its answer. The program then ends first, so
    /// that no routine takes the closing of its box for one. And F1 opens the handbook wherever it is
    /// pressed.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fail(const RuntimeError& error);
    void letGo();

    bool m_running = false;
};
