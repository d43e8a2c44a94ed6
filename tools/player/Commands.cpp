#include "Commands.h"

#include "CommandFailure.h"
#include "ControlActions.h"
#include "ControlText.h"
#include "Controls.h"
#include "FullDisk.h"
#include "GridCells.h"
#include "MenuItems.h"
#include "Picture.h"
#include "PlayedProgram.h"
#include "Views.h"

#include <QApplication>
#include <QDate>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Program = PlayedProgram&;
using Words = const QStringList&;
using Run = PlayerCommand::Run;

/// A command that prints nothing.
template<typename Action>
Run quietly(Action action) {
    return [action](Program program, Words words) -> QStringList {
        action(program, words);
        return {};
    };
}

/// As above, for what a user does. Closes an open menu first.
template<typename Action>
Run act(Action action) {
    return quietly([action](Program, Words words) {
        MenuItems::dismissOpenMenu();
        if constexpr (std::is_invocable_v<Action, Words>)
            action(words);
        else if constexpr (std::is_invocable_v<Action, const QString&>)
            action(words[0]);
        else if constexpr (std::is_invocable_v<Action, const QString&, const QString&>)
            action(words[0], words[1]);
        else
            action(words[0], words[1], words[2]);
    });
}

/// A command that prints the result of a function. The function takes the first argument, or none.
template<typename Answer>
Run tell(Answer answer) {
    return [answer](Program, Words words) -> QStringList {
        if constexpr (std::is_invocable_v<Answer, const QString&>)
            return {answer(words[0])};
        else
            return {answer()};
    };
}

QString yesOrNo(bool yes) { return yes ? u"yes"_s : u"no"_s; }

QString nameOrNone(const QObject* object) { return object ? object->objectName() : u"none"_s; }

bool parseChoice(const QString& word, const QString& yes, const QString& no) {
    if (word != yes && word != no) throw CommandFailure{u"%1 is neither %2 nor %3"_s.arg(word, yes, no)};
    return word == yes;
}

QDate parseDate(const QString& word) {
    const QDate day = QDate::fromString(word, Qt::ISODate);
    if (!day.isValid()) throw CommandFailure{u"%1 is no date"_s.arg(word)};
    return day;
}

Run press(Qt::MouseButton button) {
    return act([button](Words words) { ControlActions::pressCell(words[0], words[1], words[2], button); });
}

void queueDialog(Program program, Words words) {
    const bool file = parseChoice(words.value(0), u"pdf"_s, u"cancel"_s);
    if (words.size() != (file ? 2 : 1)) throw CommandFailure{u"a file belongs to pdf, and none to cancel"_s};
    program.dialogs().queue(file ? program.outputPath(words[1]) : QString());
}

/// `full` fills the disk at the first write, `full N` at the Nth, `full commit` at each commit.
void fillDisk(Words words) {
    if (words.size() == 1) return fillDiskAtWrite(1);
    if (words[1] == u"commit") return fillDiskAtCommits();
    fillDiskAtWrite(GridCells::parseNumber(words[1]));
}

void changeDisk(Program, Words words) {
    const QString state = words.value(0);
    const bool full = state == u"full";
    if (words.size() > (full ? 2 : 1) || (!full && state != u"readonly" && state != u"fine"))
        throw CommandFailure{u"%1 is nothing that a disk can be"_s.arg(words.join(u' '))};
    full ? fillDisk(words) : emptyDisk();
    forbidWriting(state == u"readonly");
}

void requireBoxes(Program program, Words words) {
    const QStringList came = program.boxes().takeKinds();
    if (came != words) throw CommandFailure{u"the boxes were: "_s + came.join(u' ')};
}

QStringList show(Program, Words words) {
    QStringList lines;
    for (const QString& name : words) lines.append(ControlText::shown(name));
    return lines;
}

const QList<PlayerCommand>& commands() {
    using namespace ControlActions;
    constexpr auto any = PlayerCommand::Needs::Nothing;
    constexpr auto runs = PlayerCommand::Needs::RunningProgram;
    static const QList<PlayerCommand> all = {
        // Around the program.
        {u"today", 1, any, quietly([](Program p, Words w) { p.setToday(parseDate(w[0])); })},
        {u"fjahr", 1, any,
         quietly([](Program p, Words w) { p.setFishingYear(GridCells::parseNumber(w[0])); })},
        {u"printers", 1, any,
         quietly([](Program p, Words w) { p.dialogs().setPrinters(GridCells::parseNumber(w[0])); })},
        {u"demo", 0, any, quietly([](Program p, Words) { p.wantDemoClub(); })},
        {u"sql", 1, any, quietly([](Program p, Words w) { p.file().run(w[0]); })},
        {u"sh", 1, any, quietly([](Program p, Words w) { p.runShell(w[0]); })},
        {u"disk", -1, any, quietly(&changeDisk)},
        {u"start", 0, any, quietly([](Program p, Words) { p.start(); })},
        // What a user does. An open menu stays open for `menu`.
        {u"login", 2, runs, act(&logIn)},
        {u"type", 2, runs, act(&type)},
        {u"set", 2, runs, act(&set)},
        {u"paste", 2, runs, act(&paste)},
        {u"choose", 2, runs, act(&choose)},
        {u"tick", 2, runs, act([](Words w) { tick(w[0], parseChoice(w[1], u"on"_s, u"off"_s)); })},
        {u"option", 1, runs, act(&option)},
        {u"click", 1, runs, act(&click)},
        {u"press", 1, runs, act(&click)},
        {u"date", 2, runs, act([](Words w) { setDate(w[0], parseDate(w[1])); })},
        {u"tab", 2, runs, act([](Words w) { selectTab(w[0], GridCells::parseNumber(w[1])); })},
        {u"key", 2, runs, act(&pressKey)},
        {u"focus", 1, runs, act(&focus)},
        {u"nav", 1, runs, act(&clickBarItem)},
        {u"menu", 1, runs, quietly([](Program, Words w) { MenuItems::click(w[0]); })},
        {u"open", 3, runs, act(&openCell)},
        {u"down", 3, runs, press(Qt::LeftButton)},
        {u"context", 3, runs, press(Qt::RightButton)},
        {u"answer", 1, any, quietly([](Program p, Words w) {
             p.boxes().queueAnswer(parseChoice(w[0], u"yes"_s, u"no"_s) ? vbYes : vbNo);
         })},
        {u"dialog", -1, any, quietly(&queueDialog)},
        {u"close", 1, runs, act(&ControlActions::close)},
        // What a user sees.
        {u"show", -1, runs, &show},
        {u"enabled", 1, runs, tell([](const QString& n) { return yesOrNo(ControlText::isEnabled(n)); })},
        {u"visible", 1, runs, tell([](const QString& n) { return yesOrNo(ControlText::isVisible(n)); })},
        {u"focused", 0, runs, tell([] { return Controls::nameOf(QApplication::focusWidget()); })},
        {u"front", 0, any, tell([] { return nameOrNone(Views::frontScreen()); })},
        {u"modal", 0, any, tell([] { return nameOrNone(QApplication::activeModalWidget()); })},
        {u"cursor", 0, runs, tell(&Views::cursor)},
        {u"rows", 1, runs, tell(&GridCells::rows)},
        {u"heads", 1, runs, tell(&ControlText::heads)},
        {u"items", 1, runs, tell(&ControlText::entries)},
        {u"count", 1, runs, tell([](const QString& n) { return QString::number(ControlText::count(n)); })},
        {u"bar", 0, runs, tell(&Views::bar)},
        {u"status", 0, runs, tell(&Views::status)},
        {u"boxes", 0, any, [](Program p, Words) { return p.boxes().take(); }},
        {u"box", -1, any, quietly(&requireBoxes)},
        {u"commits", 0, any, tell([] { return QString::number(takeCommits()); })},
        {u"state", 1, any, tell(&Views::state)},
        {u"query", 1, any, [](Program p, Words w) { return p.file().query(w[0]); }},
        {u"cat", 1, any,
         [](Program p, Words w) {
             return Views::linesOf(p.folder() + u'/' + QString(w[0]).replace(u'\\', u'/'));
         }},
        {u"report", -1, runs, [](Program, Words w) { return Views::report(w); }},
        {u"shot", 1, runs, quietly([](Program p, Words w) { savePicture(p.outputPath(w[0])); })},
        {u"pdf", 1, runs, quietly([](Program p, Words w) { Views::saveReport(p.outputPath(w[0])); })},
        {u"running", 0, any, [](Program p, Words) { return QStringList{yesOrNo(p.isRunning())}; }},
    };
    return all;
}

} // namespace

const PlayerCommand* findCommand(const QString& name) {
    const auto found = std::ranges::find_if(
        commands(), [&](const PlayerCommand& one) { return name == QStringView(one.name); });
    return found == commands().end() ? nullptr : &*found;
}
