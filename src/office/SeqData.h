#pragma once

#include <QString>

/// The folder for the files that go to the office programs.
namespace SeqData {

/// The path of a file in the SeqData of a program folder. The name means a file that is there already in
/// other capitals too, since the routines themselves write one file's name in several ways.
QString path(const QString& programFolder, const QString& name);

} // namespace SeqData
