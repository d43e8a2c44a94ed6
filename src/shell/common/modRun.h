#pragma once

#include "Recordset.h"

#include <QStringList>
#include <span>
#include <vector>

class ComboBox;
class DataTable;
class ErrorTail;
class QAbstractButton;
class QCheckBox;
class QWidget;
class Screen;
class TextBox;
class ValueLabel;
struct SelectionStyle;

/// What all screens share.
namespace modRun {

/// The neutral colours in which the selected row of a grid shows while the grid has the focus.
void SetzeGridFarben(SelectionStyle& style);
/// What every grid does when it receives and when it loses the focus.
void connectGridFocus(DataTable* grid);

/// For the grids that lose their selection also when they receive the focus.
void leereAuswahlBeiFokus(DataTable* grid);

/// Call after the loading routine of an opened row. Sets Modus to EDIT if the screen shows a record's number,
/// otherwise to SAVE: without a record nothing can be changed, and the next entry is a new one.
void beginneBearbeitung(const ValueLabel* nummer, int row);
/// Ends EDIT. Call when leaving a screen that empties its fields, whatever they show: a record can be open
/// over a box that the user has emptied.
void vergissOffenen();
/// The end of each press in a toolbar, whatever came of it, and the start of a screen: what is saved next is
/// a new record, on any screen.
void beendeVorgang();
/// For a screen that is left and finds its record still being edited when it comes back, unless a press on
/// another screen has ended that. In between the others must not take it for one of theirs.
void legeOffenenBeiseite(const Screen& screen);
void nimmOffenenWiederAuf(const Screen& screen);
/// The row of the record whose number stands in the label; `row` if the grid has none. On a screen of two
/// pages the row that was opened last may be one of the other page's grid.
int zeileVon(const DataTable* grid, const ValueLabel* nummer, int row);

/// Seeks the record of this number in an open table. False also when the seek itself failed: there is then no
/// current record, and the routine tells that instead of stumbling over each further statement.
bool finde(ErrorTail& step, Recordset& satz, const Value& nummer);

/// The fields of the current row. A cell that cannot be read costs that cell, not the row.
void leseZellen(ErrorTail& step, const std::vector<Recordset::Field>& felder, std::span<Value> zeile);

void MeldeNichtVorhanden();
void MeldeNichtsGefunden();
/// Afterwards the focus is in the control at fault.
void MeldeEingabeFehler(QWidget* schuld);

/// A control of a form and what it holds.
struct Eingabe {
    template<typename Control>
    Eingabe(Control* control)
        : feld(control)
        , leer(control->Text().isEmpty()) {}
    Eingabe(QWidget* control, bool empty)
        : feld(control)
        , leer(empty) {}

    QWidget* feld;
    bool leer;
};
/// The first control that must be filled and is not; null if all are.
QWidget* erstesLeere(std::initializer_list<Eingabe> eingaben);
/// True without a control at fault; otherwise MeldeEingabeFehler has told it.
bool fehlerfrei(QWidget* schuld);

void MeldeAbgebrochen();
void MeldeKeinZugriff();

bool WertAusCheckBox(const QCheckBox* box);
int CheckBoxAusWert(const Recordset::Field& field);
bool WertAusOption(const QAbstractButton* option);

/// The text of a field; empty where the record holds nothing there.
QString textOderLeer(const Recordset::Field& field);
/// The text of the box as a date, or the empty date if it is none.
Date DatumAusText(const TextBox* box);
/// The date as text, or the empty text if it is the empty date or none at all.
QString TextAusDatum(const Recordset::Field& field);

/// The twelve, in the order of the year.
const QStringList& Monatsnamen();
/// 1 to 12; any other number is told in a box and gives "Januar".
QString ErmittleMonatsname(qint32 number);
/// The names above, compared exactly; any other text is told in a box and gives 1.
qint16 ErmittleMonatsNr(const QString& name);
/// Appends the years from the lowest to the highest, `akt` if it lies behind them, and the years from `akt`
/// on if it lies before them. A gap before `akt` stays a gap. Years beyond 16 bits are left out, and of a
/// span of centuries, as a slip of the pen makes it, the middle.
void haengeJahreAn(ComboBox* combo, qint32 lowest, qint32 highest, qint16 akt);

/// 1 (Sunday) to 7; any other number gives the empty text.
QString WochentagName(int number);

/// Keeps a grid in step after a base record has changed. "LOESCHEN" removes every row whose cell in the
/// column is `text`; "UPDATE" writes `text` into every cell of the column that is `oldText`; any other word
/// does nothing.
void GridVerweiseAbgleichen(DataTable* grid, int column, const QString& text, const QString& mode,
                            const QString& oldText);

// Key filters: give the typed code back, or 0, at which the box beeps.
int FilterZiffern(int code); ///< digits
int FilterKomma(int code);   ///< digits and comma
int FilterTelefon(int code); ///< digits, minus, blank
int FilterDatum(int code);   ///< digits and point
int FilterSuche(int code);   ///< digits, A to Z, a to z, asterisk, blank

} // namespace modRun
