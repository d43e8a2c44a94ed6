#pragma once

#include <QString>
#include <memory>

/// Makes a new file with our tables and every row of a damaged file that is on undamaged pages. Leaves out
/// the printing tables, which are empty between two reports. Adds the missing essentials as delivered. Copies
/// the damaged file into the folder `keptIn`. Errors: 3056 if no row is left, 3043 if the disk can't be read,
/// else as for DBEngine::CompactDatabase.
std::shared_ptr<const void> salvageFile(const QString& source, const QString& target, const QString& password,
                                        const QString& keptIn);
