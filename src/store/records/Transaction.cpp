#include "Transaction.h"

#include "Connection.h"

Transaction::Transaction(const Database& database)
    : m_connection(database.m_connection) {
    opened().transaction().begin();
}

Transaction::~Transaction() {
    if (!m_isOpen) return;
    try {
        opened().transaction().rollback();
    } catch (const RuntimeError&) {
        // The database was closed meanwhile, which has taken uncommitted writes back.
    }
}

void Transaction::commit() {
    m_isOpen = false;
    opened().transaction().commit();
}

cursors::Connection& Transaction::opened() const {
    if (m_connection == nullptr || !m_connection->isOpen()) throw runtimeError(RuntimeError::objectNotSet);
    return *m_connection;
}
