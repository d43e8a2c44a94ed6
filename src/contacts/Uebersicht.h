#pragma once

#include "Value.h"

#include <span>

class DataTable;

/// The grid of the contact overview as the writing routines keep it in step, without ever loading it anew:
/// the rows of the categories with their count markers, and the child tables with the contacts.
/// A contact is found by its number, in the child table of its category if that is open: a closed one is read
/// anew at its next opening. Every routine begins and ends at the category level. A category that has no row
/// there has nothing to keep in step.
namespace Uebersicht {

// Columns of the category level.
constexpr int spalteNr = 0;
constexpr int spalteZustand = 1; ///< "+" closed, "-" open, empty for a category that was added later
constexpr int spalteName = 2;

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

/// The name with the count behind it, or alone where the count is 0.
void schreibeMarke(int row, const QString& name, qint32 anzahl);

/// The columns of every child table.
void SetzeKontaktSpalten();
/// A child table with one empty row, so that there is something to open before the contacts have been read.
void legeKindMitPlatzhalterAn(int row);

/// A stored contact between its old category and its new one; both may be the same.
struct Umzug {
    qint32 knr;
    qint32 neueNr;
    QString neuerName;
    bool ausSuche; ///< then closed categories keep their child tables as they are
    qint32 alteNr = 0;
    QString alterName = {};

    bool wechselt() const { return alteNr != neueNr; }
};

// Call each after the file has the change. `zeile` has the cells of a contact's row.

/// What the last press on a category left behind decides, whichever category that was: listed at once, or
/// only counted, to be read when the category is opened.
void zeigeNeuen(qint32 kategonr, const QString& name, std::span<const Value> zeile);
void zeigeGeaenderten(const Umzug& umzug, std::span<const Value> zeile);
/// Marks the row of a contact that has just been saved, or its category's where that is closed.
void markiere(qint32 kategonr, qint32 knr);
void entferneKontakt(qint32 kategonr, const QString& name, qint32 knr);

void nehmeKategorieAuf(const Value& nummer, const Value& name);
/// The count stays behind the new name.
void benenneKategorieUm(qint32 nummer, const QString& name);
void entferneKategorie(qint32 nummer);

} // namespace Uebersicht
