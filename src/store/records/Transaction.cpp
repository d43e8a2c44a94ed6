#include "Transaction.h"

#include "RuntimeError.h"

#include <utility>

Transaction::Transaction(Workspace workspace)
    : m_workspace(std::move(workspace)) {
    m_workspace.BeginTrans();
}

Transaction::~Transaction() {
    if (!m_isOpen) return;
    try {
        m_workspace.Rollback();
    } catch (const RuntimeError&) {
        // The database was closed meanwhile, which has taken uncommitted writes back.
    }
}

void Transaction::commit() {
    m_isOpen = false;
    m_workspace.CommitTrans();
}
