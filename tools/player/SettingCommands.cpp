#include "CommandFailure.h"
#include "Commands.h"
#include "FullDisk.h"
#include "GridCells.h"
#include "PlayedProgram.h"

#include <QDate>

namespace {

QStringList today(PlayedProgram& program, const QStringList& words) {
    const QDate day = QDate::fromString(words[0], Qt::ISODate);
    if (!day.isValid()) throw CommandFailure{u"%1 is no date"_qs.arg(words[0])};
    program.setToday(day);
    return {};
}

QStringList fjahr(PlayedProgram& program, const QStringList& words) {
    program.setFishingYear(GridCells::parseNumber(words[0]));
    return {};
}

QStringList printers(PlayedProgram& program, const QStringList& words) {
    program.dialogs().setPrinters(GridCells::parseNumber(words[0]));
    return {};
}

QStringList demo(PlayedProgram& program, const QStringList&) {
    program.wantDemoClub();
    return {};
}

QStringList sql(PlayedProgram& program, const QStringList& words) {
    program.file().run(words[0]);
    return {};
}

QStringList sh(PlayedProgram& program, const QStringList& words) {
    program.runShell(words[0]);
    return {};
}

/// The write from which on there is no room: the first one, or the one that is named.
void fillDisk(const QStringList& words) {
    if (words.size() == 1) return fillDiskAtWrite(1);
    if (words[1] == u"commit") return fillDiskAtCommits();
    fillDiskAtWrite(GridCells::parseNumber(words[1]));
}

QStringList disk(PlayedProgram&, const QStringList& words) {
    const bool full = words[0] == u"full";
    if (words.size() > (full ? 2 : 1) || (!full && words[0] != u"readonly" && words[0] != u"fine"))
        throw CommandFailure{u"%1 is nothing that a disk can be"_qs.arg(words.join(u' '))};
    full ? fillDisk(words) : emptyDisk();
    forbidWriting(words[0] == u"readonly");
    return {};
}

QStringList start(PlayedProgram& program, const QStringList&) {
    program.start();
    return {};
}

} // namespace

const QVector<PlayerCommand>& settingCommands() {
    constexpr auto kind = PlayerCommand::Kind::Acting;
    constexpr auto needs = PlayerCommand::Needs::Nothing;
    static const QVector<PlayerCommand> commands = {
        {u"today", 1, kind, needs, &today},
        {u"fjahr", 1, kind, needs, &fjahr},
        {u"printers", 1, kind, needs, &printers},
        {u"demo", 0, kind, needs, &demo},
        {u"sql", 1, kind, needs, &sql},
        {u"sh", 1, kind, needs, &sh},
        {u"disk", PlayerCommand::anyNumber, kind, needs, &disk},
        {u"start", 0, kind, needs, &start},
    };
    return commands;
}
