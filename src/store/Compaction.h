#pragma once

#include "FileHold.h"

#include <QString>

/// Copies every table row by row into a new file, where the rows lie densely and the indexes are built
/// afresh, and compares the copy with the original. Arguments, result and errors as for
/// DBEngine::CompactDatabase.
FileHold compactFile(const QString& source, const QString& target, const QString& password,
                     const QString& keptIn);
