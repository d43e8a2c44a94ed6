#include "Walk.h"

#include "CommandFailure.h"
#include "PlayedProgram.h"
#include "RuntimeError.h"
#include "Screens.h"

#include <QApplication>
#include <QFile>
#include <cstdio>
#include <unistd.h>

namespace {

QStringList& heard() {
    static QStringList messages;
    return messages;
}

/// A step that takes longer will never end: an alarm then ends the process.
constexpr unsigned secondsUntilStuck = 120;

constexpr char16_t comparison[] = u"# the grids beside a fresh load";

/// Message boxes that no input may cause. Only an invalid parameter in System may end the program.
bool isUnexpected(const QString& box, const QString& screen) {
    const bool ended = box.startsWith(u"critical · Uferwart · Laufzeitfehler"_qs);
    return (ended && screen != u"System"_qs) || box.contains(u"unerwarteter Fehler"_qs);
}

bool tellsOfError(const QString& box) { return box.contains(u"Runtime - Error"_qs); }

} // namespace

Walk::Walk(PlayedProgram& program, quint32 seed, int steps, QFile& trace)
    : Player({}, program, {u"walk"_qs})
    , m_user(program, seed)
    , m_grids(program)
    , m_trace(trace)
    , m_steps(steps)
    , m_planned({u"today 2026-03-14"_qs, u"demo"_qs}) {}

void Walk::hear(const QString& message) { heard().append(message); }

std::optional<ScriptCommand> Walk::next() {
    if (!isSound()) return std::nullopt;
    if (m_planned.isEmpty() && m_step >= m_steps) return std::nullopt;
    const QString line = nextLine();
    if (!isSound()) return std::nullopt;
    write(line);
    ++m_step;
    alarm(secondsUntilStuck);
    return parseScript(line).front();
}

QString Walk::nextLine() {
    constexpr int stepsBetween = 150;
    if (m_planned.isEmpty() && m_step - m_compared > stepsBetween && canCompare()) planComparison();
    if (!m_planned.isEmpty() && m_planned.first() == QString::fromUtf16(comparison)) {
        write(m_planned.takeFirst());
        compare();
    }
    return m_planned.isEmpty() ? m_user.next() : m_planned.takeFirst();
}

bool Walk::canCompare() const {
    const Screen* frame = Screens::byName(u"Main"_qs);
    return frame && frame->isVisible() && !QApplication::activeModalWidget();
}

void Walk::planComparison() {
    m_compared = m_step;
    lookAtFile();
    // The file must not change in between: no change of the year, no user added for the login.
    const QString year = program().file().query(u"SELECT FJahr FROM System"_qs).value(0);
    const QStringList start = m_user.comeBack();
    if (year < u"1900"_qs || year.size() != 4 || start.size() > 2) return;
    m_grids.remember();
    m_planned = QStringList{u"menu mnuBeenden"_qs, u"today "_qs + year + u"-03-14"_qs} + start;
    m_planned += {QString::fromUtf16(comparison), u"menu mnuBeenden"_qs, m_user.setsClock()};
}

void Walk::compare() {
    for (const QString& difference : m_grids.differences()) find(difference);
}

void Walk::carryOut(const ScriptCommand& command) {
    const KeptGrids::Moment moment = m_grids.before(RandomUser::frontScreen(program()));
    try {
        output(command);
    } catch (const CommandFailure& failure) {
        write(u"# refused: "_qs + failure.reason);
    } catch (const RuntimeError& error) {
        find(u"error %1: %2"_qs.arg(error.number).arg(error.description));
    }
    m_grids.after(moment, lookAtBoxes(moment.front));
    if (command.words.first() == u"start"_qs) m_grids.beginSession();
    for (const QString& message : std::exchange(heard(), {})) find(u"the toolkit says: "_qs + message);
}

/// Writes the message boxes into the trace, so that the scenario expects them. True if one reports an error.
bool Walk::lookAtBoxes(const QString& screen) {
    program().boxes().takeUnanswered();
    const QStringList boxes = program().boxes().take();
    if (!boxes.isEmpty()) write(u"boxes"_qs);
    for (const QString& box : boxes) {
        write(u"= "_qs + box);
        if (isUnexpected(box, screen)) find(box);
    }
    return std::any_of(boxes.begin(), boxes.end(), &tellsOfError);
}

/// Checks what must be true of the file after any input.
void Walk::lookAtFile() {
    const std::pair<const char16_t*, const char16_t*> wrong[] = {
        {u"PRAGMA integrity_check", u"ok"},
        {u"SELECT COUNT(*) FROM System", u"1"},
        {u"SELECT COUNT(*) FROM Mitglied WHERE KNr NOT IN (SELECT KNr FROM Kontakt)", u"0"},
        {u"SELECT COUNT(*) FROM Benutzer WHERE GNr NOT IN (SELECT GNr FROM Gruppen)", u"0"},
        {u"SELECT COUNT(*) FROM Kontakt WHERE GebDatum IS NULL", u"0"},
        {u"SELECT COUNT(*) FROM Mitglied WHERE Eintritt IS NULL OR Austritt IS NULL", u"0"},
    };
    for (const auto& [query, right] : wrong) {
        const QString found = program().file().query(QString::fromUtf16(query)).join(u' ');
        if (found != QString::fromUtf16(right)) find(QString::fromUtf16(query) + u" gives "_qs + found);
    }
}

void Walk::find(const QString& what) {
    m_findings.append(what);
    std::fprintf(stderr, "FOUND: %s\n", what.toUtf8().constData());
}

void Walk::write(const QString& line) {
    m_trace.write(line.toUtf8() + '\n');
    m_trace.flush();
}
