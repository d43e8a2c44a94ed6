#pragma once

#include "Recordset.h"

#include <QString>

/// The start of the program, from the loading of the frame to the catch book in front.
namespace modStart {

/// Opens the database, builds the bar and shows the login, or shows why it can't. Called by the load of the
/// frame.
void StarteUferwart();

/// Asks whether to repair the database, and repairs it. False if the user declines.
bool RepariereAufWunsch();
/// Sets the first sizes of the frame and of the bar.
void SetzeFensterGroesse();

/// Handles the OK button of the login. After a valid login the start-up goes on.
void Anmelden();
/// Checks name and password. On success also writes the status bar and applies the rights.
bool Login(const QString& name, const QString& passwort);
/// Removes the items and menus that the user's group may not use. `gruppe` must be open at the group's row.
void WendeRechteAn(const Recordset& gruppe);

/// Stores day, month and year of today in the session.
void SetzeDatumsVariablen();
/// Compares the calendar year with the fishing year of the parameters. False if the program must end.
bool KontrolliereSystemJahr();
/// Fills all grids of all screens, once.
void LadeStammdaten();
/// Writes the year into the status bar.
void ZeigeFangjahr();

} // namespace modStart
