#pragma once

#include "RuntimeError.h"

#include <optional>

struct sqlite3;

namespace cursors {

/// The writes of one user action. Begins with the first write of a cursor and commits when the last cursor
/// with writes is closed. So an action is in the file wholly or not at all.
class WriteTransaction {
public:
    explicit WriteTransaction(sqlite3* database)
        : m_database(database) {}

    /// Call before a cursor's first write. Error 3260 if another process writes.
    void join();
    /// Call when a cursor that has joined is closed. The last one commits; if that fails, everything is
    /// rolled back and the failure thrown.
    void leave();
    /// As leave(), but takes the action back. If a failure has undone the action already, throws that failure
    /// once. Between begin() and commit() or rollback() it only leaves.
    void abandon();
    /// Call after each failed write. SQLite may have rolled the whole action back; later writes of the action
    /// must then fail too.
    void noteFailure(const RuntimeError& cause);
    /// Keeps the action open until commit() or rollback(), even if all cursors are closed. Can't be nested.
    void begin();
    void commit();
    /// Open cursors that have written can't write any more (3034).
    void rollback();
    /// Throws the cause again if the action was undone.
    void requireIntact() const;
    /// False once the action was undone, until its last cursor is closed.
    bool isIntact() const { return !m_lost; }

private:
    void execute(const QByteArray& sql);
    bool isOpen() const;
    void undo();

    sqlite3* m_database;
    int m_writers = 0;     ///< joined cursors, and one for begin()
    bool m_isHeld = false; ///< by begin()
    bool m_isUndone = false;
    std::optional<RuntimeError> m_lost;
};

} // namespace cursors
