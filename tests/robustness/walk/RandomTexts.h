#pragma once

#include "DemoDice.h"

#include <QString>

/// What a user could type or paste. None holds a "|", which parts the cells of a row in the player.
namespace RandomTexts {

/// Anything: sensible, odd or hostile.
QString any(DemoDice& dice);
/// What the control of this name asks for.
QString fitting(DemoDice& dice, const QString& control);

} // namespace RandomTexts
