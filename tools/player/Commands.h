#pragma once

#include <QStringList>
#include <QVector>

class PlayedProgram;

/// A word of the scenarios' language.
struct PlayerCommand {
    /// What it acts upon, and the words behind its name; gives what it prints.
    using Run = QStringList (*)(PlayedProgram&, const QStringList&);

    enum class Kind { Acting, Printing };
    enum class Needs { Nothing, RunningProgram };

    static constexpr int anyNumber = -1;

    const char16_t* name;
    int words; ///< how many must stand behind the name; `anyNumber` is one or more
    Kind kind;
    Needs needs;
    Run run;
};

/// All of them; null for a name that there is not.
const PlayerCommand* findCommand(const QString& name);

/// What stands around the program, and its start.
const QVector<PlayerCommand>& settingCommands();
/// What a user does.
const QVector<PlayerCommand>& actingCommands();
/// What a user sees.
const QVector<PlayerCommand>& printingCommands();
