#pragma once

#include "DemoDice.h"

#include <QString>

/// Texts that a user could type or paste. None contains a "|", which separates the cells of a row in the
/// player.
namespace RandomTexts {

/// Any text: sensible, odd or hostile.
QString any(DemoDice& dice);
/// A text that suits the control of this name.
QString fitting(DemoDice& dice, const QString& control);

} // namespace RandomTexts
