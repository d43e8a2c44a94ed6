#pragma once

#include "Theme.h"

class QApplication;
class QString;

/// What must be the same on every machine on which the program is played.
namespace Platform {

/// Before the toolkit looks at it.
void settleEnvironment();
void settleApplication(QApplication& application, Theme::Mode mode);
/// True for what the platform without a screen says of each window that it can't do, and where it has no
/// session of its own.
bool isUsual(const QString& message);

} // namespace Platform
