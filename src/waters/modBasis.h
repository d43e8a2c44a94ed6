#pragma once

#include "Erfassung.h"

class ComboBox;

/// The records of kinds of fish and of waters. Routines without a name of one of them work on the page in
/// front.
namespace modBasis {

/// Forgets the name of the record last opened. Call in Form_Load.
void InitBasis();
/// Empties the entry fields and puts the focus into the name.
void BasisAnzeigeLoeschen();
/// Empties the entry fields of both pages.
void BasisAlleAnzeigenLoeschen();

/// Fill the grids. Call once, at the start of the program.
void loadTblFBasis();
void loadTblGBasis();

/// Fill a list with the names of all kinds of fish, or of all waters, from the grids.
void loadcboFArt(ComboBox* combo);
void loadcboGName(ComboBox* combo);

/// Reads the record of a grid row and fills the entry fields.
void loadAuswahl(int row);
/// The routines of the buttons save and delete. Changes keep the names in the catch book's grid in step. The
/// catches of a deleted record stay in the database.
Erfassung erfassung();

} // namespace modBasis
