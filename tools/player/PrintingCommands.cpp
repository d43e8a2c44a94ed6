#include "CodePage.h"
#include "CommandFailure.h"
#include "Commands.h"
#include "ControlText.h"
#include "Controls.h"
#include "GridCells.h"
#include "LineText.h"
#include "Main.h"
#include "NavigationBar.h"
#include "Picture.h"
#include "PlayedProgram.h"
#include "PrintRun.h"
#include "ReportAsText.h"
#include "Screens.h"
#include "SessionValue.h"
#include "Stage.h"
#include "StatusBar.h"
#include "Vorschau.h"

#include <QApplication>
#include <QFile>

namespace {

QString yesOrNo(bool yes) { return yes ? u"yes"_qs : u"no"_qs; }

Main* frame() { return qobject_cast<Main*>(Controls::findScreen(u"Main"_qs)); }

QString nameOr(const QObject* object, const QString& otherwise) {
    return object ? object->objectName() : otherwise;
}

/// On the stage of the frame, or the window that stands alone before there is a frame to see or above it.
const QWidget* frontScreen() {
    const QWidget* main = Screens::byName(u"Main"_qs);
    const auto* active = qobject_cast<const Screen*>(QApplication::activeWindow());
    if (active && active != main && !active->isModalNow()) return active;
    const bool frameIsSeen = main && main->isVisible();
    if (frameIsSeen) return Stage::current()->front() ? Stage::current()->front() : main;
    const Screen* alone = nullptr;
    for (const Screen* screen : Screens::all()) {
        if (screen->isWindow() && screen->isVisible()) alone = screen;
    }
    return alone;
}

QStringList show(PlayedProgram&, const QStringList& words) {
    QStringList lines;
    for (const QString& name : words) lines.append(ControlText::shown(name));
    return lines;
}

QStringList enabled(PlayedProgram&, const QStringList& words) {
    return {yesOrNo(ControlText::isEnabled(words[0]))};
}

QStringList visible(PlayedProgram&, const QStringList& words) {
    return {yesOrNo(ControlText::isVisible(words[0]))};
}

QStringList focused(PlayedProgram&, const QStringList&) {
    return {Controls::nameOf(QApplication::focusWidget())};
}

QStringList front(PlayedProgram&, const QStringList&) { return {nameOr(frontScreen(), u"none"_qs)}; }

QStringList modal(PlayedProgram&, const QStringList&) {
    return {nameOr(QApplication::activeModalWidget(), u"none"_qs)};
}

QStringList cursor(PlayedProgram&, const QStringList&) {
    const QWidget* pointedAt = QApplication::activeModalWidget();
    if (!pointedAt) pointedAt = frontScreen();
    const QCursor* overall = QApplication::overrideCursor();
    const Qt::CursorShape shape = overall     ? overall->shape()
                                  : pointedAt ? pointedAt->cursor().shape()
                                              : Qt::ArrowCursor;
    return {shape == Qt::WaitCursor ? u"hourglass"_qs : u"default"_qs};
}

QStringList rows(PlayedProgram&, const QStringList& words) { return GridCells::rows(words[0]); }

QStringList heads(PlayedProgram&, const QStringList& words) { return {ControlText::heads(words[0])}; }

QStringList items(PlayedProgram&, const QStringList& words) { return ControlText::entries(words[0]); }

QStringList count(PlayedProgram&, const QStringList& words) {
    return {QString::number(ControlText::count(words[0]))};
}

QStringList bar(PlayedProgram&, const QStringList&) {
    QStringList lines;
    for (const BarGroup* group : frame()->ButtnBar->groups()) {
        QString line = group->caption() + u':';
        for (const BarItem* item : group->items()) line += u' ' + item->key();
        lines.append(line);
    }
    return lines;
}

QStringList status(PlayedProgram&, const QStringList&) {
    constexpr int first = 3;
    constexpr int last = 8;
    QStringList panels;
    for (int panel = first; panel <= last; ++panel) panels.append(frame()->StatusBar1->panelText(panel));
    return {panels.join(u'|')};
}

QStringList boxes(PlayedProgram& program, const QStringList&) { return program.boxes().take(); }

QStringList state(PlayedProgram&, const QStringList& words) {
    const QString value = sessionValue(words[0]);
    if (value.isNull()) throw CommandFailure{u"there is no session value %1"_qs.arg(words[0])};
    return {lineText(value)};
}

QStringList query(PlayedProgram& program, const QStringList& words) { return program.file().query(words[0]); }

QStringList cat(PlayedProgram& program, const QStringList& words) {
    QFile file(program.folder() + u'/' + QString(words[0]).replace(u'\\', u'/'));
    if (!file.open(QIODevice::ReadOnly)) throw CommandFailure{u"there is no file %1"_qs.arg(words[0])};
    const QString text = fromWindows1252(file.readAll());
    QStringList lines;
    qsizetype first = 0;
    for (qsizetype end = text.indexOf(u'\n'); end >= 0; end = text.indexOf(u'\n', first)) {
        lines.append(lineText(text.mid(first, end + 1 - first)));
        first = end + 1;
    }
    if (first < text.size()) lines.append(lineText(text.mid(first)));
    return lines;
}

QStringList shot(PlayedProgram& program, const QStringList& words) {
    savePicture(program.outputPath(words[0]));
    return {};
}

const ReportDocument& previewed() {
    const auto* preview = qobject_cast<Vorschau*>(Controls::findScreen(u"Vorschau"_qs));
    if (!preview || !preview->document()) throw CommandFailure{u"no report is previewed"_qs};
    return *preview->document();
}

QStringList report(PlayedProgram&, const QStringList&) { return reportAsText(previewed()); }

QStringList pdf(PlayedProgram& program, const QStringList& words) {
    saveReportAsPdf(previewed(), program.outputPath(words[0]));
    return {};
}

QStringList running(PlayedProgram& program, const QStringList&) { return {yesOrNo(program.isRunning())}; }

} // namespace

const QVector<PlayerCommand>& printingCommands() {
    constexpr auto acting = PlayerCommand::Kind::Acting;
    constexpr auto kind = PlayerCommand::Kind::Printing;
    constexpr auto any = PlayerCommand::Needs::Nothing;
    constexpr auto runs = PlayerCommand::Needs::RunningProgram;
    static const QVector<PlayerCommand> commands = {
        {u"show", PlayerCommand::anyNumber, kind, runs, &show},
        {u"enabled", 1, kind, runs, &enabled},
        {u"visible", 1, kind, runs, &visible},
        {u"focused", 0, kind, runs, &focused},
        {u"front", 0, kind, any, &front},
        {u"modal", 0, kind, any, &modal},
        {u"cursor", 0, kind, runs, &cursor},
        {u"rows", 1, kind, runs, &rows},
        {u"heads", 1, kind, runs, &heads},
        {u"items", 1, kind, runs, &items},
        {u"count", 1, kind, runs, &count},
        {u"bar", 0, kind, runs, &bar},
        {u"status", 0, kind, runs, &status},
        {u"boxes", 0, kind, any, &boxes},
        {u"state", 1, kind, any, &state},
        {u"query", 1, kind, any, &query},
        {u"cat", 1, kind, any, &cat},
        {u"report", 0, kind, runs, &report},
        {u"shot", 1, acting, runs, &shot},
        {u"pdf", 1, acting, runs, &pdf},
        {u"running", 0, kind, any, &running},
    };
    return commands;
}
