#pragma once

#include <QStringList>
#include <functional>

class PlayedProgram;

/// A word of the scenarios' language.
struct PlayerCommand {
    /// What it acts upon, and the words behind its name; gives what it prints.
    using Run = std::function<QStringList(PlayedProgram&, const QStringList&)>;
    enum class Needs { Nothing, RunningProgram };

    const char16_t* name;
    int words; ///< how many must stand behind the name; below zero any number
    Needs needs;
    Run run;
};

/// Null for a name that there is not.
const PlayerCommand* findCommand(const QString& name);
