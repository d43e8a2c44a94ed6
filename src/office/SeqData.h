#pragma once

#include <QString>

/// The folder for files to the office programs.
namespace SeqData {

/// The path of a file in the folder SeqData of the program folder. Finds an existing file without regard to
/// case, since the routines spell the same name in several ways.
QString path(const QString& programFolder, const QString& name);

} // namespace SeqData
