#pragma once

#include <QDateTime>
#include <QString>

namespace engine {
class RawContent;
}

/// Keeps copies of a database file in a folder, which is made if missing: makes one, named by `time`, unless
/// the newest that is there already equals the file byte by byte. A copy gets its name when it is whole and
/// could be read; so a file that has become damaged never pushes out the copies of its better days. The ten
/// newest of those names stay; files of other names are the user's and neither counted nor deleted. Copies
/// dated after `time` count as the oldest, since they come from a clock that went wrong, then or now.
///
/// A copy that could not be read back stays as "uw01.neu" until the next copy.
///
/// Errors as for Workspace::OpenDatabase, 75 when the folder can't be made, 3026 when the disk is full; the
/// copies made before are then untouched.
void keepSafetyCopy(const QString& file, const QString& password, const QString& folder,
                    const QDateTime& time);
/// Copies a file into that folder, which is made if missing, as "uw01 vor Reparatur 2026-03-14 18.05.12.mdb",
/// where `before` is "Reparatur". No later copy takes its place. Errors as above, 3043 if the disk does not
/// give a page.
void keepFileBefore(const QString& before, const engine::RawContent& content, const QString& file,
                    const QString& folder, const QDateTime& time);
/// Whether the copy before failed in that way, which may be the file's own fault.
bool isCopyUnfinished(const QString& file, const QString& folder);
/// Takes away what is left of it.
void forgetUnfinishedCopy(const QString& file, const QString& folder);
