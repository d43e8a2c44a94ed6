#pragma once

/// Serial letters to the contacts of the categories that stand open in the overview.
namespace modSerienbrief {

/// Writes the contacts of the opened categories into SERI.txt, the data file of any serial letter, and offers
/// to start the word processor with it. An error ends it with a box; what was written by then stays.
void ErzeugeSeriendatei();

/// Begins a standard letter over SERI.txt in the word processor. A box tells if there is none.
void StarteWordSerienbrief();

} // namespace modSerienbrief
