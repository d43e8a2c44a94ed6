#pragma once

#include "FileHold.h"

#include <QString>

/// Makes a new file with the tables of ours and every row of a damaged file that lies on whole pages; the
/// rows of the printing tables, which hold nothing between two reports, stay behind. What the program can't
/// do without is put back as it was delivered. The damaged file is copied into the folder `keptIn`. Errors:
/// 3056 if no row is left, 3043 if the disk does not give a page, else as for DBEngine::CompactDatabase.
FileHold salvageFile(const QString& source, const QString& target, const QString& password,
                     const QString& keptIn);

/// Whether the password opens any page but the first, that is: whether a first page that it does not open is
/// damaged. Error 3043 if the disk does not give a page.
bool fitsOtherPages(const QString& path, const QString& password);
