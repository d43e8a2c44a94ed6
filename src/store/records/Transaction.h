#pragma once

#include "Database.h"

/// Joins the writes of several routines into one action, even if cursors are closed in between. It is in the
/// file as a whole or not at all. The destructor takes it back unless commit() was called, for instance after
/// an error. There can be one at a time.
class Transaction {
public:
    /// Error 91 without an open database, 3260 if another process writes.
    explicit Transaction(const Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// If the commit fails, takes everything back and throws the failure. If a cursor with writes is still
    /// open, the commit waits until it is closed. Error 91 if the database was closed.
    void commit();

private:
    cursors::Connection& opened() const;

    std::shared_ptr<cursors::Connection> m_connection;
    bool m_isOpen = true;
};
