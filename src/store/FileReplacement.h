#pragma once

#include <QString>

/// Puts a whole database file in the place of a closed one, in one step: whatever happens, there is either
/// the old or the new file. Lasts when this returns. What a killed process has left beside the old file gets
/// another name first (".alt" behind its own), since it would be taken for the new one's. Error 75 if it
/// can't be done; the new file then stays where it is.
void replaceDatabase(const QString& newFile, const QString& oldFile);
