#pragma once

#include <QtGlobal>

// Makes the disk fail, as seen by SQLite.

/// Fails each write from the `place`th on, counted from 1, for want of space.
void fillDiskAtWrite(int place);
/// Leaves space for the journal only: each commit fails at its first page.
void fillDiskAtCommits();
/// Drops the `place`th write from now on, but reports it as done.
void loseWrite(int place);
/// Ends the errors of writing.
void emptyDisk();
/// Fails reads of the byte at this place, in any file. -1 ends that.
void failReadsAt(qint64 place);
/// Call before the first connection, so that takeCommits() counts.
void countCommits();
/// The number of write transactions since the last call. Counts the journals that were removed.
int takeCommits();

/// Makes the files opened from now on read-only. File permissions would not do: the tests run as root, who
/// may write everywhere.
void forbidWriting(bool forbidden);
