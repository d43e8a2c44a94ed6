#pragma once

class ReportSection;

/// Gives each growing label the letters and the lines that its text needs. Controls below it move down, and
/// the section gets as much higher. To be called once, when all captions are set.
void growToTexts(ReportSection& section);
