#pragma once

#include <QStringList>
#include <vector>

/// One command of a scenario with the output that it must print.
struct ScriptCommand {
    int line = 0; ///< from 1
    QString text; ///< the line as it stands
    QStringList words;
    QStringList expected;
    QString fault; ///< why the line can't be read; empty if it can
};

/// Takes a scenario apart. A line that can't be read becomes a command with a fault, so that the others still
/// play.
std::vector<ScriptCommand> parseScript(const QString& text);
