#pragma once

#include "Theme.h"

class QApplication;

/// Applies the colours of Theme, its style and its fonts to the application.
namespace Theme {

/// Makes the fonts in a folder known to the program, whether or not the machine has them; a missing folder is
/// no error. To be called before the first apply().
void loadFonts(const QString& folder);
/// Style, palette and fonts for the whole program. Also loads Qt's German words and makes German the locale
/// of dates and numbers. May be called again to change the mode.
void apply(QApplication& application, Mode mode);
/// Dark if the desktop asks for it. To be asked before the first apply().
Mode desktopMode(const QApplication& application);

} // namespace Theme
