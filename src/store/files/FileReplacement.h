#pragma once

#include <QString>

/// Puts a whole database file in the place of a closed one, in one step: whatever happens, there is either
/// the old or the new file. Where the old path is a link, the file behind it is replaced. Lasts when this
/// returns. A journal that a killed process has left beside the old file gets another name first (".alt"
/// behind its own), since it would be taken for the new file's. Error 75 if it can't be done; the old file
/// and its journals are then as before, and the new file is removed.
void replaceDatabase(const QString& newFile, const QString& oldPath);
