#pragma once

#include "Database.h"

/// The workspace: the place from which databases are opened.
class Workspace {
public:
    /// Opens a file for shared reading and writing. `connect` carries the password as ";pwd=...".
    /// Errors: 3024 there is no such file; 3031 the password does not open a file that has the shape of one
    /// of ours; 3343 the file is empty, cut short or otherwise damaged; 3045 another process holds it; 3051
    /// it may not be read.
    Database OpenDatabase(const QString& path, bool options, bool readOnly, const QString& connect);
};

/// The store's entry point.
class DBEngine {
public:
    /// There is one workspace, number 0.
    static Workspace Workspaces(int index);
    /// Writes a compact, verified copy of a closed file, whole on disk before this returns. The target must
    /// not exist (3204) and its folder must (3044). 3056 when not even the tables of the source can be read.
    static void CompactDatabase(const QString& source, const QString& target, const QString& password);
};
