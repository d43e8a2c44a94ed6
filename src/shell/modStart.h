#pragma once

/// The start of the program, from the loading of the frame to the catch book in front.
namespace modStart {

/// Opens the database, builds the bar and shows the login, or shows why it can't. Called by the load of the
/// frame.
void StarteUferwart();

/// Asks whether to repair the database, and repairs it. False if the user declines.
bool RepariereAufWunsch();

/// Handles the OK button of the login. After a valid login the start-up goes on.
void Anmelden();

/// Stores day, month and year of today in the session.
void SetzeDatumsVariablen();
/// Compares the calendar year with the fishing year of the parameters. False if the program must end.
bool KontrolliereSystemJahr();

} // namespace modStart
