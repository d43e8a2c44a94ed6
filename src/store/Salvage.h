#pragma once

#include <QString>

/// Makes a new file with the tables of ours and every row of a damaged file that lies on whole pages; the
/// rows of the printing tables, which hold nothing between two reports, stay behind. What the program can't
/// do without is put back as it was delivered. Errors: 3056 if no row is left, else as for
/// DBEngine::CompactDatabase.
void salvageFile(const QString& source, const QString& target, const QString& password);

/// Whether the password opens any page but the first, that is: whether a first page that it does not open is
/// damaged.
bool fitsOtherPages(const QString& path, const QString& password);
