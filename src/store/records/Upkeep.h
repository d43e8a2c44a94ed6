#pragma once

#include <QDateTime>
#include <QString>

/// What the program does for its database file besides working on it.
namespace Upkeep {

/// Puts a whole database file in the place of a closed one, in one step: whatever happens, there is either
/// the old or the new file. Where the old path is a link, the file behind it is replaced. Lasts when this
/// returns. Error 75 if it can't be done; the old file is then as before, and the new file is removed.
void replaceDatabase(const QString& newFile, const QString& oldPath);

/// Copies a database file into a folder, which is made if missing, unless the newest copy there equals it.
/// The copy is named by `time` once it could be read back; the ten newest stay. Errors as for
/// Workspace::OpenDatabase, 75 when the folder can't be made, 3026 when the disk is full; the copies made
/// before are then untouched.
void keepSafetyCopy(const QString& file, const QString& password, const QString& folder,
                    const QDateTime& time);
/// Whether the last copy could not be read back, which may be the file's own fault.
bool isCopyUnfinished(const QString& file, const QString& folder);
/// Removes what is left of that copy.
void forgetUnfinishedCopy(const QString& file, const QString& folder);

} // namespace Upkeep
