#pragma once

#include "RawFile.h"

#include <array>
#include <string>
#include <vector>

// The statements that fill the screens after the login, through SQLite's C API.

struct RawCell {
    qint64 number = 0;
    std::string text;
};
using RawCatches = std::vector<std::array<RawCell, 6>>;

/// Reads the catches of the clock's month with their names and copies the cells.
void rawJoin(RawFile& file, RawCatches& rows);
/// Steps through all contacts of every category without reading them. Returns their number.
int rawCounts(RawFile& file);
