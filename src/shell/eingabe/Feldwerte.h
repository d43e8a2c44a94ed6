#pragma once

#include "Recordset.h"

#include <span>

class ErrorTail;
class TextBox;

// Conversions between the fields of a record and the controls of a screen.

namespace modRun {

/// Reads fields of the current row into `zeile`. A cell that can't be read keeps its value; the others are
/// read.
void leseZellen(ErrorTail& step, const std::vector<Recordset::Field>& felder, std::span<Value> zeile);
/// The text of a field; empty if it is Null.
QString textOderLeer(const Recordset::Field& field);
/// The text of the box as a date; the empty date if it is not a date.
Date DatumAusText(const TextBox* box);
/// The date in a field as text; the empty text for Null and for the empty date.
QString TextAusDatum(const Recordset::Field& field);

} // namespace modRun
