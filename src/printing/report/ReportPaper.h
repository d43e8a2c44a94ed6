#pragma once

/// The sheet that reports are made for: A4 portrait with its margins, in tenths of a millimetre. The margins
/// are wider than the edge that a printer can't print on.
namespace ReportPaper {

constexpr double tenthsPerInch = 254;
constexpr int width = 2100;
constexpr int height = 2970;
constexpr int left = 180;
constexpr int right = 180;
constexpr int top = 150;
constexpr int bottom = 150;
constexpr int bodyWidth = width - left - right;
constexpr int bodyHeight = height - top - bottom;

} // namespace ReportPaper
