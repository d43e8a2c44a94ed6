#include "Views.h"

#include "CodePage.h"
#include "CommandFailure.h"
#include "Controls.h"
#include "LineText.h"
#include "Main.h"
#include "NavigationBar.h"
#include "PrintRun.h"
#include "ReportAsText.h"
#include "Screens.h"
#include "SessionValue.h"
#include "Stage.h"
#include "StatusBar.h"
#include "Vorschau.h"

#include <QApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

Main* frame() { return qobject_cast<Main*>(Controls::findScreen(u"Main"_s)); }

const ReportDocument& previewed() {
    const auto* preview = qobject_cast<Vorschau*>(Controls::findScreen(u"Vorschau"_s));
    if (!preview || !preview->document()) throw CommandFailure{u"no report is previewed"_s};
    return *preview->document();
}

} // namespace

namespace Views {

const QWidget* frontScreen() {
    const QWidget* main = Screens::byName(u"Main"_s);
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

QString cursor() {
    const QWidget* pointedAt = QApplication::activeModalWidget();
    if (!pointedAt) pointedAt = frontScreen();
    const QCursor* overall = QApplication::overrideCursor();
    const Qt::CursorShape shape = overall     ? overall->shape()
                                  : pointedAt ? pointedAt->cursor().shape()
                                              : Qt::ArrowCursor;
    return shape == Qt::WaitCursor ? u"hourglass"_s : u"default"_s;
}

QStringList bar() {
    QStringList lines;
    for (const QWidget* group : frame()->ButtnBar->groups()) {
        QString line = group->accessibleName() + u':';
        for (const BarItem* item : group->findChildren<BarItem*>()) line += u' ' + item->key();
        lines.append(line);
    }
    return lines;
}

QString status() {
    constexpr int first = 3;
    constexpr int last = 8;
    QStringList panels;
    for (int panel = first; panel <= last; ++panel) panels.append(frame()->StatusBar1->panelText(panel));
    return panels.join(u'|');
}

QString state(const QString& name) {
    const QString value = sessionValue(name);
    if (value.isNull()) throw CommandFailure{u"there is no session value %1"_s.arg(name)};
    return lineText(value);
}

QStringList linesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw CommandFailure{u"there is no file %1"_s.arg(path)};
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

QStringList report(const QStringList& words) {
    QStringList lines = reportAsText(previewed());
    const auto unwanted = [&](const QString& line) {
        const QString name = line.section(u" = "_s, 0, 0);
        const bool inRow = !line.startsWith(u"Section") || name == line;
        return !words.contains(inRow ? u"rows"_s : name) && !words.contains(name.section(u'.', 0, 0));
    };
    if (!words.isEmpty()) lines.removeIf(unwanted);
    return lines;
}

void saveReport(const QString& path) { printReport(previewed(), {path}); }

} // namespace Views
