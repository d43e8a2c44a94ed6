#pragma once

#include <QStringList>
#include <vector>

/// One command of a scenario with the output that it must print.
struct ScriptCommand {
    int line = 0; ///< from 1
    QString text; ///< the whole line
    QStringList words;
    QStringList expected;
    QString fault; ///< why the line can't be read; empty if it can
};

/// Reads the commands of a scenario. A line that can't be read becomes a command with a fault, so that the
/// others still run.
std::vector<ScriptCommand> parseScript(const QString& text);
