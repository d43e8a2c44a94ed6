#pragma once

#include "Erfassung.h"

#include <QString>

class ComboBox;

/// The base data: kinds of fish and waters. The two are kept alike; each routine has its twin.
namespace modBasis {

void InitBasis();
/// Empties the page in front and puts the focus into its name.
void BasisAnzeigeLoeschen();
/// Empties both pages.
void BasisAlleAnzeigenLoeschen();

/// Fill the grids, once, at the start.
void loadTblFBasis();
void loadTblGBasis();

/// Fill a list with the names of all kinds of fish, or of all waters, as the grids show them.
void loadcboFArt(ComboBox* combo);
void loadcboGName(ComboBox* combo);

/// True if the name is filled; else a box says so.
bool FischEingabeVollstaendig();
bool GewaesserEingabeVollstaendig();
/// A new record from the form.
void SpeicherFisch();
void SpeicherGewaesser();
/// Changes the record whose number the page shows, its grid row, and its name in the catch book's grid.
void UpdateFisch(int row);
void UpdateGewaesser(int row);
/// Deletes the record whose number the page shows, its grid row, and the rows of the catch book's grid that
/// show its name. The catches themselves stay in the file.
void LoescheFisch(int row);
void LoescheGewaesser(int row);
/// Fill the form from a grid row.
void loadFAuswahl(int row, int column);
void loadGAuswahl(int row, int column);

/// The routines behind the buttons save and delete, for the page of fish and that of waters.
Erfassung fischErfassung();
Erfassung gewaesserErfassung();

} // namespace modBasis
