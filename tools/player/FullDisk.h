#pragma once

#include <QtGlobal>

// Errors of the disk, as SQLite sees them.

/// The disk is full from the `place`th write on, counted from 1.
void fillDiskAtWrite(int place);
/// From now on there is room for the journal only: each commit fails at its first page.
void fillDiskAtCommits();
/// The `place`th write from now on is reported as done and is not done.
void loseWrite(int place);
/// Ends the errors of writing.
void emptyDisk();
/// From now on reads of the byte at this place of any file fail; -1 for none.
void failReadsAt(qint64 place);
/// Call before the first connection, so that takeCommits() counts.
void countCommits();
/// The number of write transactions since the last call, by the journals that were removed.
int takeCommits();

/// Whether files opened from now on are read-only. The tests run as root, who may write everywhere.
void forbidWriting(bool forbidden);
