#pragma once

#include <QDateTime>

namespace engine {
class RawContent;
}

/// As Upkeep::keepSafetyCopy. Makes no copy if the newest one equals the file byte by byte. A copy gets its
/// name only after it was read back, so a damaged file never replaces good copies; it stays as "uw01.neu"
/// until the next copy. Files with other names belong to the user: they are neither counted nor deleted.
/// Copies dated after `time` count as the oldest, since the clock was wrong then or is now.
void keepSafetyCopy(const QString& file, const QString& password, const QString& folder,
                    const QDateTime& time);
/// Copies a file into that folder, which is made if missing, as "uw01 vor Reparatur 2026-03-14 18.05.12.mdb"
/// if `before` is "Reparatur". It is never deleted for later copies. Errors as above, 3043 if the disk can't
/// be read.
void keepFileBefore(const QString& before, const engine::RawContent& content, const QString& file,
                    const QString& folder, const QDateTime& time);
/// As in Upkeep.
bool isCopyUnfinished(const QString& file, const QString& folder);
void forgetUnfinishedCopy(const QString& file, const QString& folder);
