#pragma once

#include "DBEngine.h"

/// Holds several routines' writes together as one action. One that ends without having been committed is
/// taken back: by an error, or because the program ends in the middle.
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
