#pragma once

#include "Database.h"

/// Opens databases.
class Workspace {
public:
    /// Opens a file for shared reading and writing. `connect` has the password as ";pwd=...". Errors: 3024 if
    /// there is no such file; 3031 if the password does not open a file that has the shape of ours; 3343 if
    /// the file is empty, cut short or otherwise damaged; 3045 if another process locks it; 3051 if it may
    /// not be read.
    static Database OpenDatabase(const QString& path, bool options, bool readOnly, const QString& connect);
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
