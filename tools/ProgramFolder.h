#pragma once

#include <QStringList>

/// Makes the files that the program expects beside its executable: `uw01.mdb` with its first rows and the
/// fishing year `year`, and the folders temp, SeqData, Sicherung and Graphics/bmp with Cut.bmp; with `demo`
/// an invented club as well. `folder` may exist, but must not hold a uw01.mdb. A failure removes all that was
/// made so far.
/// Errors: 3204 if there is a database already; 75 if a folder or file can't be made; otherwise the store's.
void makeProgramFolder(const QString& folder, int year, bool demo);

/// Adds the tables and fields of this version that the folder's database lacks, and keeps a copy of the
/// database in "Sicherung". Returns the names added. Errors as for completeDatabase().
QStringList completeProgramFolder(const QString& folder);
