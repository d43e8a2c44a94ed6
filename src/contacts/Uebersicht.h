#pragma once

#include "Value.h"

#include <QStringList>
#include <span>

/// Keeps the grid of the contact overview up to date after each write: the grid is never loaded again. It has
/// a row for each category, with the count behind the name, and child tables with the contacts. A contact's
/// row is looked for by its number, and only in an open category: a closed one reads its contacts again when
/// it is opened. Every routine begins and ends at the category level. Categories without a row are skipped.
namespace Uebersicht {

// Columns of the category level.
constexpr int spalteNr = 0;
constexpr int spalteZustand = 1; ///< "+" closed, "-" open, empty for a category that was added later
constexpr int spalteName = 2;

/// The fields of a contact's row, in the order of its cells. The picture's cell is between the first two.
extern const QStringList felder;

/// A stored contact with its old and its new category, which may be the same.
struct Umzug {
    qint32 knr;
    qint32 neueNr;
    QString neuerName;
    bool ausSuche; ///< true: closed categories keep their child tables as they are
    qint32 alteNr = 0;
    QString alterName = {};

    bool wechselt() const { return alteNr != neueNr; }
};

// Call these after the change is in the file. `zeile` has the cells of a contact's row.

/// Lists a new contact at once if LetzterKlappZustand is true, whichever category set it, and the category
/// has contacts. Otherwise only counts it: it is read when the category is opened.
void zeigeNeuen(qint32 kategonr, const QString& name, std::span<const Value> zeile);
void zeigeGeaenderten(const Umzug& umzug, std::span<const Value> zeile);
/// Marks the row of a contact that has just been saved, or its category's row if that is closed.
void markiere(qint32 kategonr, qint32 knr);
void entferneKontakt(qint32 kategonr, const QString& name, qint32 knr);

void nehmeKategorieAuf(const Value& nummer, const Value& name);
/// Renames a category and keeps its count.
void benenneKategorieUm(qint32 nummer, const QString& name);
void entferneKategorie(qint32 nummer);

} // namespace Uebersicht
