#pragma once

#include <QString>
#include <memory>

/// Copies every table row by row into a new file, where the rows lie densely and the indexes are built
/// afresh, and compares the copy with the original. Arguments, result and errors as for
/// DBEngine::CompactDatabase.
std::shared_ptr<const void> compactFile(const QString& source, const QString& target, const QString& password,
                                        const QString& keptIn);
