#include "CommandFailure.h"
#include "Commands.h"
#include "ControlActions.h"
#include "GridCells.h"
#include "MenuItems.h"
#include "PlayedProgram.h"

#include <QDate>

namespace {

/// A command that only acts on the controls.
using Action = void (*)(const QStringList&);

template<Action action>
QStringList act(PlayedProgram&, const QStringList& words) {
    MenuItems::dismissOpenMenu();
    action(words);
    return {};
}

bool parseChoice(const QString& word, const QString& yes, const QString& no) {
    if (word != yes && word != no) throw CommandFailure{u"%1 is neither %2 nor %3"_qs.arg(word, yes, no)};
    return word == yes;
}

void logIn(const QStringList& words) { ControlActions::logIn(words[0], words[1]); }
void type(const QStringList& words) { ControlActions::type(words[0], words[1]); }
void set(const QStringList& words) { ControlActions::set(words[0], words[1]); }
void paste(const QStringList& words) { ControlActions::paste(words[0], words[1]); }
void choose(const QStringList& words) { ControlActions::choose(words[0], words[1]); }
void tick(const QStringList& words) {
    ControlActions::tick(words[0], parseChoice(words[1], u"on"_qs, u"off"_qs));
}
void option(const QStringList& words) { ControlActions::option(words[0]); }
void click(const QStringList& words) { ControlActions::click(words[0]); }
void focus(const QStringList& words) { ControlActions::focus(words[0]); }
void pressKey(const QStringList& words) { ControlActions::pressKey(words[0], words[1]); }
void close(const QStringList& words) { ControlActions::close(words[0]); }
void nav(const QStringList& words) { ControlActions::clickBarItem(words[0]); }
void open(const QStringList& words) { ControlActions::openCell(words[0], words[1], words[2]); }
void down(const QStringList& words) {
    ControlActions::pressCell(words[0], words[1], words[2], Qt::LeftButton);
}
void context(const QStringList& words) {
    ControlActions::pressCell(words[0], words[1], words[2], Qt::RightButton);
}
void tab(const QStringList& words) { ControlActions::selectTab(words[0], GridCells::parseNumber(words[1])); }

void date(const QStringList& words) {
    const QDate day = QDate::fromString(words[1], Qt::ISODate);
    if (!day.isValid()) throw CommandFailure{u"%1 is no date"_qs.arg(words[1])};
    ControlActions::setDate(words[0], day);
}

// An open menu stays open for it.
QStringList menu(PlayedProgram&, const QStringList& words) {
    MenuItems::click(words[0]);
    return {};
}

QStringList answer(PlayedProgram& program, const QStringList& words) {
    program.boxes().queueAnswer(parseChoice(words[0], u"yes"_qs, u"no"_qs) ? vbYes : vbNo);
    return {};
}

QStringList dialog(PlayedProgram& program, const QStringList& words) {
    const bool file = parseChoice(words[0], u"pdf"_qs, u"cancel"_qs);
    if (words.size() != (file ? 2 : 1)) throw CommandFailure{u"a file belongs to pdf, and none to cancel"_qs};
    program.dialogs().queue(file ? program.outputPath(words[1]) : QString());
    return {};
}

} // namespace

const QVector<PlayerCommand>& actingCommands() {
    constexpr auto kind = PlayerCommand::Kind::Acting;
    constexpr auto any = PlayerCommand::Needs::Nothing;
    constexpr auto runs = PlayerCommand::Needs::RunningProgram;
    static const QVector<PlayerCommand> commands = {
        {u"login", 2, kind, runs, &act<logIn>},   {u"type", 2, kind, runs, &act<type>},
        {u"set", 2, kind, runs, &act<set>},       {u"paste", 2, kind, runs, &act<paste>},
        {u"choose", 2, kind, runs, &act<choose>}, {u"tick", 2, kind, runs, &act<tick>},
        {u"option", 1, kind, runs, &act<option>}, {u"click", 1, kind, runs, &act<click>},
        {u"press", 1, kind, runs, &act<click>},   {u"date", 2, kind, runs, &act<date>},
        {u"tab", 2, kind, runs, &act<tab>},       {u"key", 2, kind, runs, &act<pressKey>},
        {u"focus", 1, kind, runs, &act<focus>},   {u"nav", 1, kind, runs, &act<nav>},
        {u"menu", 1, kind, runs, &menu},          {u"open", 3, kind, runs, &act<open>},
        {u"down", 3, kind, runs, &act<down>},     {u"context", 3, kind, runs, &act<context>},
        {u"answer", 1, kind, any, &answer},       {u"dialog", PlayerCommand::anyNumber, kind, any, &dialog},
        {u"close", 1, kind, runs, &act<close>},
    };
    return commands;
}
