#pragma once

#include <QString>

/// Copies every table row by row into a new file, where the rows lie densely and the indexes are built
/// afresh, and compares the copy with the original. Of a damaged file it saves what is left. Errors as for
/// DBEngine::CompactDatabase.
void compactFile(const QString& source, const QString& target, const QString& password);
