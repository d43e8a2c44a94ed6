#pragma once

#include "Recordset.h"

#include <QString>
#include <span>
#include <vector>

class ErrorTail;
class QAbstractButton;
class QCheckBox;
class TextBox;

// Values on their way between a record and the controls of a screen.

namespace modRun {

/// The fields of the current row. A cell that cannot be read costs that cell, not the row.
void leseZellen(ErrorTail& step, const std::vector<Recordset::Field>& felder, std::span<Value> zeile);
bool WertAusCheckBox(const QCheckBox* box);
int CheckBoxAusWert(const Recordset::Field& field);
bool WertAusOption(const QAbstractButton* option);
/// The text of a field; empty where the record holds nothing there.
QString textOderLeer(const Recordset::Field& field);
/// The text of the box as a date, or the empty date if it is none.
Date DatumAusText(const TextBox* box);
/// The date as text, or the empty text if it is the empty date or none at all.
QString TextAusDatum(const Recordset::Field& field);

} // namespace modRun
