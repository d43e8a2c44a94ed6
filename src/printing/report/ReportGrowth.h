#pragma once

class ReportSection;

/// Gives each growing label the size of letters and the number of lines that its text needs. Controls below
/// it move down, and the section grows by the same height. Call once, when all captions are set.
void growToTexts(ReportSection& section);
