#pragma once

#include "Database.h"

#include <memory>

/// Opens databases and holds transactions. Copies share their state.
class Workspace {
public:
    Workspace();

    /// Opens a file for shared reading and writing. `connect` has the password as ";pwd=...". Errors: 3024 if
    /// there is no such file; 3031 if the password does not open a file that has the shape of ours; 3343 if
    /// the file is empty, cut short or otherwise damaged; 3045 if another process locks it; 3051 if it may
    /// not be read.
    Database OpenDatabase(const QString& path, bool options, bool readOnly, const QString& connect);

    // A transaction over several routines, in the database opened last. All writes between BeginTrans and
    // CommitTrans are in the file as a whole or not at all, even if cursors are closed in between. Error 91
    // without an open database, 3034 without a BeginTrans.
    void BeginTrans(); ///< 3260 if another process writes, 3251 if already begun
    /// If the commit fails, takes everything back and throws the failure. If a cursor with writes is still
    /// open, the commit waits until it is closed.
    void CommitTrans();
    void Rollback();

private:
    cursors::Connection& opened() const;
    std::shared_ptr<std::weak_ptr<cursors::Connection>> m_opened;
};

/// Keeps other processes from a database file until destroyed.
using FileHold = std::shared_ptr<const void>;

/// The store's entry point.
class DBEngine {
public:
    /// There is one workspace, number 0.
    static Workspace Workspaces(int index);
    /// Writes a compact, verified copy of a closed file and flushes it to the disk. Hold the result until the
    /// copy has taken the source's place, or the writes of other processes in between are lost.
    ///
    /// A damaged source is error 3343 unless `keptIn` names a folder, which is made if missing. The damaged
    /// file is then kept there, and the copy has all rows on undamaged pages. With `keptIn`, a copy without a
    /// row of `System` gets one.
    ///
    /// Errors: 3204 if the target exists, 3044 if its folder does not, 3056 if no rows can be saved, 3043 if
    /// the disk can't be read.
    static FileHold CompactDatabase(const QString& source, const QString& target, const QString& password,
                                    const QString& keptIn = {});
};
