#pragma once

/// Serial letters to the contacts of the categories that are open in the overview.
namespace modSerienbrief {

/// Writes the contacts of the open categories to SERI.txt, the data file of serial letters, then offers to
/// start the word processor. After an error shows a message box; the rows written until then stay.
void ErzeugeSeriendatei();

/// Begins a standard letter in the word processor with SERI.txt as its data. Shows a message box if there is
/// no word processor.
void StarteWordSerienbrief();

} // namespace modSerienbrief
