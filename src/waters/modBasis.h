#pragma once

#include "Erfassung.h"

#include <QString>

class ComboBox;

/// The records of kinds of fish and of waters. Each routine for fish has a counterpart for waters.
namespace modBasis {

/// Forgets the name of the record last opened. Call in Form_Load.
void InitBasis();
/// Empties the entry fields of the page in front and puts the focus into the name.
void BasisAnzeigeLoeschen();
/// Empties the entry fields of both pages.
void BasisAlleAnzeigenLoeschen();

/// Fill the grids. Call once, at the start of the program.
void loadTblFBasis();
void loadTblGBasis();

/// Fill a list with the names of all kinds of fish, or of all waters, from the grids.
void loadcboFArt(ComboBox* combo);
void loadcboGName(ComboBox* combo);

/// True if the name is filled; false after a message box.
bool FischEingabeVollstaendig();
bool GewaesserEingabeVollstaendig();
/// Saves the entry fields as a new record.
void SpeicherFisch();
void SpeicherGewaesser();
/// Changes the record whose number the page shows, and its name in the grids of this screen and of the catch
/// book. `row` is used if the grid has no row of this number.
void UpdateFisch(int row);
void UpdateGewaesser(int row);
/// Deletes the record whose number the page shows, its grid row, and the rows in the catch book's grid that
/// show its name. The catches stay in the database. `row` as above.
void LoescheFisch(int row);
void LoescheGewaesser(int row);
/// Read the record of a grid row and fill the entry fields.
void loadFAuswahl(int row, int column);
void loadGAuswahl(int row, int column);

/// The routines of the buttons save and delete on the page of fish and on the page of waters.
Erfassung fischErfassung();
Erfassung gewaesserErfassung();

} // namespace modBasis
