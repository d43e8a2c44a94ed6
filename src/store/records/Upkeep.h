#pragma once

#include <QDateTime>

/// Maintenance of the program's database file.
namespace Upkeep {

/// Puts a complete database file in the place of a closed one, in one step: after a crash there is either the
/// old or the new file. If the old path is a link, its target is replaced. The change is flushed to the disk.
/// Error 75 if it can't be done; the old file is then as before, and the new file is removed.
void replaceDatabase(const QString& newFile, const QString& oldPath);

/// Copies a database file into a folder, which is made if missing, unless the newest copy there equals it.
/// The copy gets its name, with `time`, after it was read back. The ten newest copies stay. Errors as for
/// Workspace::OpenDatabase, 75 if the folder can't be made, 3026 if the disk is full. Earlier copies are then
/// untouched.
void keepSafetyCopy(const QString& file, const QString& password, const QString& folder,
                    const QDateTime& time);
/// Whether the last copy could not be read back, perhaps because the file itself is damaged.
bool isCopyUnfinished(const QString& file, const QString& folder);
/// Removes that unreadable copy.
void forgetUnfinishedCopy(const QString& file, const QString& folder);

} // namespace Upkeep
