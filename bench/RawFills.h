#pragma once

#include "RawFile.h"

#include <array>
#include <string>
#include <vector>

// The statements of the fills after the login, through the bare C API.

struct RawCell {
    qint64 number = 0;
    std::string text;
};
using RawCatches = std::vector<std::array<RawCell, 6>>;

/// The catches of the clock's month with their names, the cells copied.
void rawJoin(RawFile& file, RawCatches& rows);
/// Every contact of every category, not looked at; gives how many.
int rawCounts(RawFile& file);
