#pragma once

#include <QString>

/// The work ledger.
namespace modArbeit {

/// True if the user who is logged in may use the work ledger.
bool ArbeitsZugriff_Erlaubt();

/// Books the balance of `altesJahr` into the session's AktJahr for every member who is not exempt.
void UebernehmeStunden(qint32 altesJahr);
/// Deletes all bookings of 1 January of `altesJahr`. Call if the clock was set back to an earlier year.
void Ueberpruefe_auf_Uebertrag(qint32 altesJahr);

/// Shows the member in a row of the contact search. Refuses, with a message box, a contact who is no member
/// or is exempt.
void UebernehmeKontakt(int row);
/// The same for the row of the member list on which the context menu was opened. Shows the ledger.
void mnuArbContr_Click();

/// Fills the ledger's grid with the bookings of a member in a year. Returns their hours.
double loadTblArbeit(qint32 knr, qint32 jahr);
/// Reads the booking in a row of the ledger's grid into the input fields.
void loadArbeitsVorgang(int row);
/// Stores the input fields as a new booking of the member and the year shown.
void SpeicherStunden();
/// Writes the input fields over the open booking and moves it to the year shown. `row` is not used: the
/// booking is found by its number.
void UpdateStunden(int row);
/// Deletes the open booking. `row` is not used, as above.
void LoescheStunden(int row);

void LeereArbEingabe();
/// Empties the input fields if they show a stored booking. Keeps a new booking that is being typed.
void LeereOffenen();
void LeereArbAnzeige();
/// True if a member, hours and a readable date are there, otherwise shows a message box.
bool PruefeArbEingabe();

/// Shows the hours that `ermittle` gives for the member and the year on the screen. Throws RuntimeError if
/// one of them is missing.
void zeigeStunden(double (*ermittle)(qint32 knr, qint32 jahr));
/// Shows the hours owed, from the session's PflichtStd.
void zeigePflichtStd();
/// Shows the balance of the two sums on the screen. Throws RuntimeError if one is empty.
void zeigeSaldo();

/// Prints ("drucken") or previews ("vorschau") the grid as the member's work sheet.
void DruckeArbListe(const QString& wort);

} // namespace modArbeit
