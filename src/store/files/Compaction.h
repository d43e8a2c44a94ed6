#pragma once

#include <QString>
#include <memory>

/// Copies every table into a new file, where rows are packed and indexes rebuilt, and checks the copy.
/// Arguments, result and errors as for DBEngine::CompactDatabase.
std::shared_ptr<const void> compactFile(const QString& source, const QString& target, const QString& password,
                                        const QString& keptIn);
