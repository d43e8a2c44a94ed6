#pragma once

#include <QString>

/// As Upkeep::replaceDatabase. A journal left beside the old file is renamed first (".alt" behind its name),
/// since SQLite would apply it to the new file. If the file can't be replaced, the journals are as before
/// too.
void replaceDatabase(const QString& newFile, const QString& oldPath);
