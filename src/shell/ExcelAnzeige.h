#pragma once

#include <QString>
#include <initializer_list>

/// Shows a file in the spreadsheet program, each of the columns such as "A:A" as wide as its content. A box
/// says so where there is no such program.
void zeigeInExcel(const QString& path, std::initializer_list<QString> columns);
