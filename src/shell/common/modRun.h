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

} // namespace modRun
