#pragma once

#include <QString>
#include <memory>

/// Makes a new file with the tables of ours and every row of a damaged file that lies on whole pages; the
/// rows of the printing tables, which hold nothing between two reports, stay behind. What the program can't
/// do without is put back as it was delivered. The damaged file is copied into the folder `keptIn`. Errors:
/// 3056 if no row is left, 3043 if the disk does not give a page, else as for DBEngine::CompactDatabase.
std::shared_ptr<const void> salvageFile(const QString& source, const QString& target, const QString& password,
                                        const QString& keptIn);
