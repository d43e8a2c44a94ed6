#pragma once

#include <QDateTime>
#include <QString>

namespace engine {
class RawContent;
}

/// Copies a database file into a folder, which is made if missing, under a name with `time`. Makes no copy if
/// the newest one equals the file byte by byte. A copy gets its name only after it was read back, so a
/// damaged file never replaces good copies. The ten newest copies stay. Files with other names belong to the
/// user: they are neither counted nor deleted. Copies dated after `time` count as the oldest, since the clock
/// was wrong then or is now.
///
/// A copy that could not be read back stays as "uw01.neu" until the next copy.
///
/// Errors as for Workspace::OpenDatabase, 75 if the folder can't be made, 3026 if the disk is full. Earlier
/// copies are then untouched.
void keepSafetyCopy(const QString& file, const QString& password, const QString& folder,
                    const QDateTime& time);
/// Copies a file into that folder, which is made if missing, as "uw01 vor Reparatur 2026-03-14 18.05.12.mdb"
/// if `before` is "Reparatur". It is never deleted for later copies. Errors as above, 3043 if the disk can't
/// be read.
void keepFileBefore(const QString& before, const engine::RawContent& content, const QString& file,
                    const QString& folder, const QDateTime& time);
/// Whether the last copy could not be read back, perhaps because the file itself is damaged.
bool isCopyUnfinished(const QString& file, const QString& folder);
/// Removes that unreadable copy.
void forgetUnfinishedCopy(const QString& file, const QString& folder);
