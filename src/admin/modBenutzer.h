#pragma once

#include "Erfassung.h"
#include "Recordset.h"

#include <QString>
#include <vector>

class ComboBox;

/// Users and the groups that carry their rights. Both grids are working copies: filled once at the start
/// (modStart), and changed here along with each write.
namespace modBenutzer {

/// The grid row of the group on which the cursor stands: number, name and the rights.
std::vector<Value> gruppenZeile(const Recordset& gruppe);

/// Fill the grids at the start: users with a group, and groups with their rights.
void loadTblBenutzer();
void loadTblZugriff();

/// A new user from the form; a group that there is not ends it, told by a box.
void SpeicherBenutzer();
/// Changes the opened user and its grid row.
void UpdateBenutzer(int row);
/// Deletes the opened user and its grid row.
void LoescheBenutzer(int row);

/// A new group from the form.
void SpeicherBG();
/// Changes the opened group and its grid row; the users' grid keeps the old name until the next start.
void UpdateBG(int row);
/// Deletes the opened group. The file deletes its users along with it; their rows go from the grid here.
void LoescheZugriff(int row);

/// The group of this name, of several the first; 0 after a box if there is none.
qint32 ErmittleGNr(const QString& name);
/// "0" if there is no such group.
QString ErmittleGName(qint32 gnr);

/// Check boxes to the copy buffer of an open record of Gruppen.
void SichereZugriff(Recordset& gruppe);
/// Grid row to check boxes.
void LadeZugriff(int row);
/// Opens the user of the screen's grid row into the form.
void LadeBenutzerVorgang();
/// Opens the group of a grid row into the form.
void LadeGruppenVorgang(int row);

/// Empties the form in front and puts the focus into its name.
void LeereBenutzerEingabe();
/// Empties the forms of both pages.
void LeereBenutzerAnzeige();

/// True if name and group are filled; else a box says so. A password may be empty.
bool PruefeBenutzerEingabe();
/// True if the name is filled; else a box says so.
bool PruefeGruppenEingabe();

/// The list of groups, as they stand in the grid.
void LadeGruppenCombo(ComboBox* combo);

/// The routines behind the buttons save and delete, for the page of users and that of groups.
Erfassung benutzerErfassung();
Erfassung gruppenErfassung();

} // namespace modBenutzer
