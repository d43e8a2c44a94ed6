#pragma once

#include "Database.h"

#include <memory>

/// The workspace: the place from which databases are opened. A value with shared state.
class Workspace {
public:
    Workspace();

    /// Opens a file for shared reading and writing. `connect` carries the password as ";pwd=...".
    /// Errors: 3024 there is no such file; 3031 the password does not open a file that has the shape of one
    /// of ours; 3343 the file is empty, cut short or otherwise damaged; 3045 another process holds it; 3051
    /// it may not be read.
    Database OpenDatabase(const QString& path, bool options, bool readOnly, const QString& connect);

    // An action of more than one routine, in the database that was opened last: what is written between
    // BeginTrans and CommitTrans is in the file as a whole or not at all, even if cursors are closed in
    // between. Error 91 without an open database, 3034 without a BeginTrans.
    void BeginTrans(); ///< 3260 while another process writes; 3251 within another one
    /// Throws what kept it from the disk, in which case all is taken back. A cursor that has written and is
    /// still open puts it off until its end.
    void CommitTrans();
    void Rollback();

private:
    cursors::Connection& opened() const;
    std::shared_ptr<std::weak_ptr<cursors::Connection>> m_opened;
};

/// Keeps other processes from a database file until it is destroyed.
using FileHold = std::shared_ptr<const void>;

/// The store's entry point.
class DBEngine {
public:
    /// There is one workspace, number 0.
    static Workspace Workspaces(int index);
    /// Writes a compact, verified copy of a closed file, whole on disk before this returns. Hold the result
    /// until the copy is in the source's place, or what another process writes meanwhile is lost. The target
    /// must not exist (3204) and its folder must (3044). A damaged source (3343) is salvaged only if there is
    /// a folder in which to keep it (`keptIn`, made if missing): the copy then has all rows on whole pages,
    /// and the record of the parameters if there was none; 3056 if there are no rows. 3043 if the disk does
    /// not give a page.
    static FileHold CompactDatabase(const QString& source, const QString& target, const QString& password,
                                    const QString& keptIn = {});
};
