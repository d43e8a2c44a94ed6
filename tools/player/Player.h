#pragma once

#include "PlayedProgram.h"
#include "Script.h"

#include <QObject>
#include <QPointer>
#include <optional>

/// Plays a scenario. A command begins when the program has nothing left to do, also while an earlier one
/// still stands in a modal screen that it has opened: the loop of that screen drives the player on.
class Player : public QObject {
    Q_OBJECT

public:
    struct Options {
        QString name; ///< of the scenario's file, for messages
        bool verbose = false;
    };

    Player(std::vector<ScriptCommand> script, PlayedProgram& program, Options options);

    /// Plays to the end and gives the number of failures, which it has told on the standard error output.
    int play();

protected:
    /// What is played next; nothing at the end.
    virtual std::optional<ScriptCommand> next();
    virtual void carryOut(const ScriptCommand& command);
    /// Carries it out and gives what it prints. CommandFailure if it can't be done.
    QStringList output(const ScriptCommand& command);
    /// At the end: boxes, answers and dialogs that nobody has asked for.
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
    QString m_command; ///< as it stands in the scenario
    int m_level = 0;   ///< of the event loop in which the command in progress was begun
    bool m_stepPosted = false;
    int m_failures = 0;
};
