#include "WriteTransaction.h"

#include "DatabaseHandle.h"
#include "Statement.h"

#include <utility>

namespace cursors {

void WriteTransaction::join() {
    requireIntact();
    if (m_writers == 0) execute("BEGIN IMMEDIATE");
    ++m_writers;
}

void WriteTransaction::leave() {
    if (--m_writers > 0) return;
    const auto lost = std::exchange(m_lost, std::nullopt);
    if (std::exchange(m_isUndone, false)) return;
    if (lost) throw *lost;
    try {
        execute("COMMIT");
    } catch (const RuntimeError&) {
        if (isOpen()) execute("ROLLBACK");
        throw;
    }
}

void WriteTransaction::begin() {
    join();
    m_isHeld = true;
}

void WriteTransaction::commit() {
    m_isHeld = false;
    leave();
}

void WriteTransaction::rollback() {
    m_isHeld = false;
    undo();
}

void WriteTransaction::abandon() {
    if (m_isHeld || m_isUndone) return leave();
    const auto lost = m_lost;
    undo();
    if (lost) throw *lost;
}

/// After this, open cursors can't write, and closing them commits nothing.
void WriteTransaction::undo() {
    m_lost = runtimeError(RuntimeError::noTransaction);
    m_isUndone = true;
    leave();
    if (isOpen()) execute("ROLLBACK");
}

void WriteTransaction::noteFailure(const RuntimeError& cause) {
    if (!isOpen() && !m_lost) m_lost = cause;
}

void WriteTransaction::requireIntact() const {
    if (m_lost) throw *m_lost;
}

void WriteTransaction::execute(const QByteArray& sql) { engine::Statement(m_database, sql).run(); }

bool WriteTransaction::isOpen() const { return engine::isInTransaction(m_database); }

} // namespace cursors
