#pragma once

#include "Player.h"
#include "RandomUser.h"

class QFile;

/// Runs the program with a random user and checks it after each step. Ends at the first finding.
class Walk : public Player {
public:
    /// Writes each step to the trace before taking it. The trace is a scenario that repeats the walk.
    Walk(PlayedProgram& program, quint32 seed, int steps, QFile& trace);

    /// True if nothing was found.
    bool isSound() const { return m_findings.isEmpty(); }
    /// Takes an unexpected message of Qt.
    static void hear(const QString& message);

protected:
    std::optional<ScriptCommand> next() override;
    void carryOut(const ScriptCommand& command) override;
    void reportLeftovers() override {}

private:
    void lookAtBoxes(const QString& screen);
    void lookAtFile();
    void find(const QString& what);
    void write(const QString& line);

    RandomUser m_user;
    QFile& m_trace;
    int m_steps;
    int m_step = 0;
    QStringList m_planned;
    QStringList m_findings;
};
