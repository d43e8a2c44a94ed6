#pragma once

#include <QStringList>
#include <functional>

class PlayedProgram;

/// A command of the language of scenarios.
struct PlayerCommand {
    /// Takes the program and the arguments. Returns the lines to print.
    using Run = std::function<QStringList(PlayedProgram&, const QStringList&)>;
    enum class Needs { Nothing, RunningProgram };

    const char16_t* name;
    int words; ///< number of arguments; below zero for any number
    Needs needs;
    Run run;
};

/// Null if no command has this name.
const PlayerCommand* findCommand(const QString& name);
