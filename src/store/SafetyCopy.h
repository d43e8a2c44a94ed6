#pragma once

#include <QDateTime>
#include <QString>

/// Keeps copies of a database file in a folder: makes one, named by `time`, unless the newest that is there
/// already equals the file byte by byte. A copy gets its name when it is whole and could be read; so a file
/// that has become damaged never pushes out the copies of its better days. The ten newest stay. Copies dated
/// after `time` count as the oldest, since they come from a clock that went wrong, then or now.
///
/// What could not be read back, or was cut short by a power cut, stays as "uw01.neu" until the next copy.
///
/// A missing folder is made. Errors as for Workspace::OpenDatabase, 75 if the folder can't be made, 3026 when
/// the disk is full; the copies made before are then untouched.
void keepSafetyCopy(const QString& file, const QString& password, const QString& folder,
                    const QDateTime& time);
/// Whether the copy before failed in that way, which may be the file's own fault.
bool isCopyUnfinished(const QString& file, const QString& folder);
/// Takes away what is left of it.
void forgetUnfinishedCopy(const QString& file, const QString& folder);
