#pragma once

#include "RuntimeError.h"

#include <QByteArray>
#include <optional>

struct sqlite3;

namespace cursors {

/// One user action's writes. Begins with the first write of a cursor and reaches the disk when the last
/// cursor that has written is closed, so an action is either wholly in the file or not at all.
class WriteTransaction {
public:
    explicit WriteTransaction(sqlite3* database)
        : m_database(database) {}

    /// A cursor is about to write for the first time. Error 3260 while another process writes.
    void join();
    /// A cursor that has joined is closed; the last one commits. Failing that, everything is rolled back and
    /// the failure is thrown.
    void leave();
    /// As leave, but takes the action back. Throws what has undone it already, once. Under begin the
    /// decision is left to commit and rollback.
    void abandon();
    /// To be told of each failed write: the library may have taken back all writes of the action, which must
    /// then not go on as if nothing were missing.
    void noteFailure(const RuntimeError& cause);
    /// Holds the action open whatever cursors are closed, until commit or rollback. There is one level of it:
    /// error 3251 within another one, 3034 where none was begun.
    void begin();
    void commit();
    /// Cursors that have written and are still open write no more (3034).
    void rollback();
    /// Throws that cause again once it has happened.
    void requireIntact() const;
    /// False once it has happened, until the last of the action's cursors is closed.
    bool isIntact() const { return !m_lost; }

private:
    void execute(const QByteArray& sql);
    bool isOpen() const;
    void endHold();
    void undo();

    sqlite3* m_database;
    int m_writers = 0;     ///< with the hold of begin
    bool m_isHeld = false; ///< by begin
    bool m_isUndone = false;
    std::optional<RuntimeError> m_lost;
};

} // namespace cursors
