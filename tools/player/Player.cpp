#include "Player.h"

#include "CommandFailure.h"
#include "Commands.h"
#include "Hand.h"
#include "RuntimeError.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QScopedValueRollback>
#include <QThread>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int loopLevel() { return QThread::currentThread()->loopLevel(); }

QString indented(const QStringList& lines) {
    return lines.isEmpty() ? u"(nothing)"_s : lines.join(u"\n            "_s);
}

void requireWords(const PlayerCommand& command, qsizetype given) {
    if (command.words >= 0 && given != command.words)
        throw CommandFailure{u"%1 words behind the name, which it does not take"_s.arg(given)};
}

} // namespace

Player::Player(std::vector<ScriptCommand> script, PlayedProgram& program, Options options)
    : m_script(std::move(script))
    , m_program(program)
    , m_options(std::move(options)) {}

int Player::play() {
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &Player::programIsIdle);
    QCoreApplication::exec();
    disconnect(QAbstractEventDispatcher::instance(), nullptr, this, nullptr);
    reportLeftovers();
    return m_failures;
}

// While a command runs, the next one begins only in an event loop that the program has opened. Hand::settle()
// opens none, so it starts no command.
void Player::programIsIdle() {
    if (m_stepPosted || loopLevel() <= m_level) return;
    m_stepPosted = true;
    QMetaObject::invokeMethod(this, &Player::step, Qt::QueuedConnection);
}

void Player::step() {
    m_stepPosted = false;
    if (loopLevel() <= m_level) return;
    const QScopedValueRollback level(m_level, loopLevel());
    Hand::releaseButton();
    Hand::settle();
    const std::optional<ScriptCommand> command = next();
    if (!command) return finishPlay();
    m_line = command->line;
    m_command = command->text;
    carryOut(*command);
    reportUnanswered();
}

std::optional<ScriptCommand> Player::next() {
    if (m_next == m_script.size()) return std::nullopt;
    return m_script[m_next++];
}

void Player::finishPlay() {
    m_program.end();
    QCoreApplication::exit();
}

void Player::carryOut(const ScriptCommand& command) {
    tell(u"%1: %2"_s.arg(command.line).arg(m_command));
    try {
        const QStringList printed = output(command);
        for (const QString& line : printed) tell(u"= "_s + line);
        if (!command.expected.isEmpty() && printed != command.expected)
            fail(indented(command.expected), indented(printed));
    } catch (const CommandFailure& failure) {
        fail(command.expected.isEmpty() ? u"that it can be done"_s : indented(command.expected),
             failure.reason);
    } catch (const RuntimeError& error) {
        fail(u"that it can be done"_s, u"error %1: %2"_s.arg(error.number).arg(error.description));
    }
}

QStringList Player::output(const ScriptCommand& command) {
    if (!command.fault.isEmpty()) throw CommandFailure{command.fault};
    const PlayerCommand* known = findCommand(command.words.first());
    if (!known) throw CommandFailure{u"there is no such command"_s};
    requireWords(*known, command.words.size() - 1);
    if (known->needs == PlayerCommand::Needs::RunningProgram) m_program.requireRunning();
    Hand::activateWindow();
    return known->run(m_program, command.words.mid(1));
}

void Player::reportUnanswered() {
    for (const QString& box : m_program.boxes().takeUnanswered())
        fail(u"no question without a queued answer"_s, box);
}

void Player::reportLeftovers() {
    m_command = u"end of the scenario"_s;
    reportUnanswered();
    const QStringList boxes = m_program.boxes().take();
    if (!boxes.isEmpty()) fail(u"no box that has not been printed"_s, indented(boxes));
    const qsizetype answers = m_program.boxes().unusedAnswers();
    if (answers > 0) fail(u"no answer left over"_s, QString::number(answers));
    const qsizetype dialogs = m_program.dialogs().unused();
    if (dialogs > 0) fail(u"no dialog left over"_s, QString::number(dialogs));
}

void Player::fail(const QString& expected, const QString& got) {
    ++m_failures;
    const QString text = u"%1:%2: %3\n  expected: %4\n  got:      %5\n"_s.arg(m_options.name)
                             .arg(m_line)
                             .arg(m_command, expected, got);
    std::fputs(text.toUtf8().constData(), stderr);
}

void Player::tell(const QString& line) const {
    if (!m_options.verbose) return;
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}
