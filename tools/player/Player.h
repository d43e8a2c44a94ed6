#pragma once

#include "PlayedProgram.h"
#include "Script.h"

#include <QObject>
#include <QPointer>
#include <optional>

/// Runs a scenario. A command begins when the program has nothing left to do. If a command opens a modal
/// screen, the next commands run inside the event loop of that screen.
class Player : public QObject {
    Q_OBJECT

public:
    struct Options {
        QString name; ///< of the scenario's file, for messages
        bool verbose = false;
    };

    Player(std::vector<ScriptCommand> script, PlayedProgram& program, Options options);

    /// Runs the scenario to its end. Writes each failure to the standard error output and returns their
    /// number.
    int play();

protected:
    /// The next command; nothing at the end.
    virtual std::optional<ScriptCommand> next();
    virtual void carryOut(const ScriptCommand& command);
    /// Runs the command and returns what it prints. CommandFailure if it can't be done.
    QStringList output(const ScriptCommand& command);
    /// Called at the end. Reports message boxes, answers and dialogs that were not used.
    virtual void reportLeftovers();
    PlayedProgram& program() { return m_program; }

private:
    void programIsIdle();
    void step();
    void finishPlay();

    void reportUnanswered();
    void fail(const QString& expected, const QString& got);
    void tell(const QString& line) const;

    std::vector<ScriptCommand> m_script;
    PlayedProgram& m_program;
    Options m_options;
    std::size_t m_next = 0;
    int m_line = 0;    ///< of the command last begun
    QString m_command; ///< its line in the scenario
    int m_level = 0;   ///< of the event loop in which the running command began
    bool m_stepPosted = false;
    int m_failures = 0;
};
