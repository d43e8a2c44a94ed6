#include "Walk.h"

#include "CommandFailure.h"
#include "PlayedProgram.h"
#include "RuntimeError.h"
#include "Screens.h"

#include <QApplication>
#include <QFile>
#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QStringList& heard() {
    static QStringList messages;
    return messages;
}

/// A step that takes longer will never end: an alarm then ends the process.
constexpr unsigned secondsUntilStuck = 120;

/// Message boxes that no input may cause. Only an invalid parameter in System may end the program.
bool isUnexpected(const QString& box, const QString& screen) {
    const bool ended = box.startsWith(u"critical · Uferwart · Laufzeitfehler"_s);
    return (ended && screen != u"System"_s) || box.contains(u"unerwarteter Fehler"_s);
}

} // namespace

Walk::Walk(PlayedProgram& program, quint32 seed, int steps, QFile& trace)
    : Player({}, program, {u"walk"_s})
    , m_user(program, seed)
    , m_trace(trace)
    , m_steps(steps)
    , m_planned({u"today 2026-03-14"_s}) {}

void Walk::hear(const QString& message) { heard().append(message); }

std::optional<ScriptCommand> Walk::next() {
    constexpr int stepsBetweenLooks = 150;
    if (m_step % stepsBetweenLooks == stepsBetweenLooks - 1) lookAtFile();
    if (!isSound() || m_step >= m_steps) return std::nullopt;
    const QString line = m_planned.isEmpty() ? m_user.next() : m_planned.takeFirst();
    write(line);
    ++m_step;
    alarm(secondsUntilStuck);
    return parseScript(line).front();
}

void Walk::carryOut(const ScriptCommand& command) {
    const Screen* front = RandomUser::frontScreen(program());
    const QString screen = front ? front->objectName() : QString();
    try {
        output(command);
    } catch (const CommandFailure& failure) {
        write(u"# refused: "_s + failure.reason);
    } catch (const RuntimeError& error) {
        find(u"error %1: %2"_s.arg(error.number).arg(error.description));
    }
    lookAtBoxes(screen);
    for (const QString& message : std::exchange(heard(), {})) find(u"Qt says: "_s + message);
}

/// Writes the message boxes into the trace, so that the scenario expects them.
void Walk::lookAtBoxes(const QString& screen) {
    program().boxes().takeUnanswered();
    const QStringList boxes = program().boxes().take();
    if (!boxes.isEmpty()) write(u"boxes"_s);
    for (const QString& box : boxes) {
        write(u"= "_s + box);
        if (isUnexpected(box, screen)) find(box);
    }
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
        if (found != QString::fromUtf16(right)) find(QString::fromUtf16(query) + u" gives "_s + found);
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
