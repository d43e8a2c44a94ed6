#pragma once

#include <QtGlobal>

// What may be wrong with the disk, as the database library sees it.

/// From here on the disk is full at the `place`th write, counted from 1, and stays so.
void fillDiskAtWrite(int place);
/// From here on the journal finds room and the file does not: each commit fails at its first page.
void fillDiskAtCommits();
/// The disk says that it has written, and has not: the `place`th write from here on.
void loseWrite(int place);
/// There is room again.
void emptyDisk();
/// From here on reads of the byte at this place of any file fail; at -1 none.
void failReadsAt(qint64 place);
/// How many write transactions have ended since the last call, by the journals that were removed.
int takeCommits();
void countCommits();

/// Whether files that are opened from here on may not be written to. The tests' user may write everywhere.
void forbidWriting(bool forbidden);
