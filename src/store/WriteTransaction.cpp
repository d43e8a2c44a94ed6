#include "WriteTransaction.h"

#include "Sqlite.h"
#include "Statement.h"

#include <utility>

void WriteTransaction::join() {
    requireIntact();
    if (m_writers == 0) execute("BEGIN IMMEDIATE");
    ++m_writers;
}

void WriteTransaction::leave() {
    if (--m_writers > 0) return;
    if (const auto lost = std::exchange(m_lost, std::nullopt)) throw *lost;
    try {
        execute("COMMIT");
    } catch (const RuntimeError&) {
        if (isOpen()) execute("ROLLBACK");
        throw;
    }
}

void WriteTransaction::noteFailure(const RuntimeError& cause) {
    if (!isOpen() && !m_lost) m_lost = cause;
}

void WriteTransaction::requireIntact() const {
    if (m_lost) throw *m_lost;
}

void WriteTransaction::execute(const QByteArray& sql) { Statement(m_database, sql).run(); }

bool WriteTransaction::isOpen() const { return sqlite3_get_autocommit(m_database) == 0; }
