#pragma once

#include "Erfassung.h"

class ComboBox;

/// The records of users and of the groups with the users' rights. Both grids are filled once at the start of
/// the program, by modStart. After that each routine that writes a record changes its grid row as well.
namespace modBenutzer {

/// Fill the grids of users and groups. Call once, at the start of the program. Users without a group get no
/// row.
void loadTblBenutzer();
void loadTblZugriff();

/// The routines of the buttons save and delete on the page of users and on the page of groups. A change of a
/// group's name reaches the users' grid at the next start of the program. The database deletes the users of a
/// deleted group with it.
Erfassung benutzerErfassung();
Erfassung gruppenErfassung();

/// Open the record of a grid row and fill the entry fields.
void LadeBenutzerVorgang(int row);
void LadeGruppenVorgang(int row);

/// Empties the entry fields of the page in front and puts the focus into the name.
void LeereBenutzerEingabe();
/// Empties the entry fields of both pages.
void LeereBenutzerAnzeige();

/// Fills the list with the groups of the grid. The text in the box stays.
void LadeGruppenCombo(ComboBox* combo);

} // namespace modBenutzer
