#pragma once

#include "DBEngine.h"

/// Joins the writes of several routines into one action. The destructor takes the action back unless commit()
/// was called, for instance after an error.
class Transaction {
public:
    /// Errors as for Workspace::BeginTrans.
    explicit Transaction(Workspace workspace);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Errors as for Workspace::CommitTrans.
    void commit();

private:
    Workspace m_workspace;
    bool m_isOpen = true;
};
