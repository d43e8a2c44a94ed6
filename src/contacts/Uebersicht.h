#pragma once

#include "Value.h"

#include <span>

class DataTable;

/// The grid of the contact overview as the writing routines keep it in step, without ever loading it anew:
/// the rows of the categories with their count markers, and the child tables with the contacts.
/// Every routine that names a row or a number of a category begins and ends at the category level. A category
/// that has no row there has nothing to keep in step.
namespace Uebersicht {

// Columns of the category level.
constexpr int spalteNr = 0;
constexpr int spalteZustand = 1; ///< "+" closed, "-" open, empty for a category that was added later
constexpr int spalteName = 2;

/// The blank or blanks between the name and the count. What a new contact writes has one.
enum class Abstand { Eins, Zwei };

/// Stays in the child table of a category for as long as it lives, and returns to the category level.
class ImKind {
public:
    explicit ImKind(int row);
    ~ImKind();
    ImKind(const ImKind&) = delete;
    ImKind& operator=(const ImKind&) = delete;

    DataTable* operator->() { return &m_grid; }

private:
    DataTable& m_grid;
};

/// The row of a category, -1 if it has none.
int findeKategorie(qint32 nummer);
bool istOffen(int row);
/// The number between the brackets of the row's text, of which `length` characters are looked at; 0 if there
/// is none.
qint32 ErmittleKategoAnzahl(int row, qsizetype length);
qint32 anzahl(int row);
/// The name alone, or with the count where that is not 0.
void schreibeMarke(int row, const QString& name, qint32 anzahl, Abstand abstand = Abstand::Zwei);

/// The columns of every child table.
void SetzeKontaktSpalten();
/// Makes the row a child table with its columns and no rows; one that is there is replaced.
void legeKindAn(int row);
/// The colours by which contacts stand out from categories.
void faerbeKind(int row);
/// A child table with one empty row, so that there is something to open before the contacts have been read.
void legeKindMitPlatzhalterAn(int row);

/// Writes the cells of a contact's row, from the firm on, in the table that is current.
void schreibeZellen(int kontakt, std::span<const Value> zeile);
void fuegeKontaktAn(int row, std::span<const Value> zeile);
/// Writes what stands of a contact in its row, if it has one; number and picture stay.
void aktualisiereKontakt(int row, qint32 knr, std::span<const Value> zeile);
/// Marks the row of a contact that has just been saved, or its category's where that is closed.
void markiere(qint32 kategonr, qint32 knr);
/// Removes a contact from a category's child table, if it stands there.
void entferneKontakt(int row, qint32 knr);

void nehmeKategorieAuf(const Value& nummer, const Value& name);
/// The count stays behind the new name.
void benenneKategorieUm(qint32 nummer, const QString& name);
void entferneKategorie(qint32 nummer);

} // namespace Uebersicht
