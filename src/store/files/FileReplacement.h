#pragma once

#include <QString>

/// Puts a complete database file in the place of a closed one, in one step: after a crash there is either the
/// old or the new file. If the old path is a link, its target is replaced. The change is flushed to the disk.
/// A journal left beside the old file is renamed first (".alt" behind its name), since SQLite would apply it
/// to the new file. Error 75 if it can't be done; the old file and its journals are then as before, and the
/// new file is removed.
void replaceDatabase(const QString& newFile, const QString& oldPath);
