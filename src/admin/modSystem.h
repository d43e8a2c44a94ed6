#pragma once

/// The one row of the club's parameters.
namespace modSystem {

/// Reads the row into the grid, the address boxes and the labels of Info.
void loadTblSystem();
/// Writes the parameters whose boxes are filled, as whole numbers. A text that is no number is an error of
/// the caller's.
void UpdateParameter();
/// Writes the address as it stands in its boxes, empty or not.
void UpdateAdresse();
void LeereParameter();
/// The value of a grid row into its box.
void LadeParameter(int row);

} // namespace modSystem
