#pragma once

#include <QStringList>

/// Makes what the program expects beside its executable: `uw01.mdb` with its first rows and the fishing year
/// `year`, and the folders temp, SeqData and Graphics/bmp with Cut.bmp; with `demo` an invented club as well.
/// The folder may be there already as long as it holds no uw01.mdb. What a failure leaves half-made is taken
/// away again.
/// Errors: 3204 there is a database already; 75 a folder or file can't be made; otherwise the store's.
void makeProgramFolder(const QString& folder, int year, bool demo);

/// Adds to the database of a program folder what it lacks of the tables and fields of this version, and keeps
/// a copy of it in "Sicherung". Gives the names of what was added. Errors as for completeDatabase.
QStringList completeProgramFolder(const QString& folder);
