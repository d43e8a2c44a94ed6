#pragma once

#include "Theme.h"

class QString;

/// Settings that make a scenario give the same on every machine.
namespace Platform {

/// Call before the QApplication is made.
void settleEnvironment();
void settleApplication(Theme::Mode mode);
/// True for messages that say nothing of the program: Qt's offscreen platform can't do some things for a
/// window, and there may be no session.
bool isUsual(const QString& message);

} // namespace Platform
