#pragma once

/// The single record of the table System: the club's parameters and address.
namespace modSystem {

/// Shows the record in the grid, the address boxes and the labels of Info. Call once, at the start.
void loadTblSystem();
/// Writes the parameters whose boxes are filled, as whole numbers. Throws RuntimeError if a text is not a
/// number.
void UpdateParameter();
/// Writes all address boxes, the empty ones too. Throws RuntimeError if the record can't be written.
void UpdateAdresse();
/// Empties the boxes of the parameters.
void LeereParameter();
/// Opens the parameter of a grid row: its value stands in its box, selected and with the focus.
void LadeParameter(int row);

} // namespace modSystem
