#pragma once

#include "Erfassung.h"
#include "Recordset.h"

#include <QString>
#include <vector>

class ComboBox;

/// The records of users and of the groups with the users' rights. Both grids are filled once at the start of
/// the program, by modStart. After that each routine that writes a record changes its grid row as well.
namespace modBenutzer {

/// The grid row of the current record: number, name and the rights.
std::vector<Value> gruppenZeile(const Recordset& gruppe);

/// Fill the grids of users and groups. Call once, at the start of the program. Users without a group get no
/// row.
void loadTblBenutzer();
void loadTblZugriff();

/// Saves the entry fields as a new user. An unknown group ends it with a message box.
void SpeicherBenutzer();
/// Changes the open user and its grid row.
void UpdateBenutzer(int row);
/// Deletes the open user and its grid row.
void LoescheBenutzer(int row);

/// Saves the entry fields as a new group.
void SpeicherBG();
/// Changes the open group and its grid row. The users' grid keeps the old name until the next start of the
/// program.
void UpdateBG(int row);
/// Deletes the open group. The database deletes the group's users with it; their grid rows are removed here.
void LoescheZugriff(int row);

/// The number of the first group of this name; 0 after a message box if there is none.
qint32 ErmittleGNr(const QString& name);
/// The name of a group; "0" if there is none.
QString ErmittleGName(qint32 gnr);

/// Writes the check boxes into the copy buffer of a record of Gruppen. Call between AddNew or Edit and
/// Update.
void SichereZugriff(Recordset& gruppe);
/// Sets the check boxes from a grid row of a group.
void LadeZugriff(int row);
/// Opens the user in the screen's gridRow() and fills the entry fields.
void LadeBenutzerVorgang();
/// Opens the group in a grid row and fills the entry fields.
void LadeGruppenVorgang(int row);

/// Empties the entry fields of the page in front and puts the focus into the name.
void LeereBenutzerEingabe();
/// Empties the entry fields of both pages.
void LeereBenutzerAnzeige();

/// True if name and group are filled; false after a message box. A password may be empty.
bool PruefeBenutzerEingabe();
/// True if the name is filled; false after a message box.
bool PruefeGruppenEingabe();

/// Fills the list with the groups of the grid. The text in the box stays.
void LadeGruppenCombo(ComboBox* combo);

/// The routines of the buttons save and delete on the page of users and on the page of groups.
Erfassung benutzerErfassung();
Erfassung gruppenErfassung();

} // namespace modBenutzer
