#pragma once

#include "Recordset.h"

#include <QString>

/// The start of the program, from the loading of the frame to the catch book in front.
namespace modStart {

/// The load of the frame: opens the database, builds the bar and shows the login, or tells why not.
void StarteUferwart();

/// Asks whether the database is to be repaired, and does so; false if the user doesn't want it.
bool RepariereAufWunsch();
/// First sizes of the frame and of the bar.
void SetzeFensterGroesse();

/// The step behind the OK of the login; on a valid login the start-up goes on.
void Anmelden();
/// Checks name and password; on success also writes the status bar and applies the rights.
bool Login(const QString& name, const QString& passwort);
/// Takes away what the user's group may not use; `gruppe` is the open cursor on its row.
void WendeRechteAn(const Recordset& gruppe);

/// Day, month and year of today.
void SetzeDatumsVariablen();
/// Compares the calendar year with the fishing year of the parameters; false means the program is to end.
bool KontrolliereSystemJahr();
/// Fills all grids of all screens, once.
void LadeStammdaten();
/// Writes the year into the status bar.
void ZeigeFangjahr();

} // namespace modStart
