#pragma once

#include "Theme.h"

class QApplication;

/// Applies the colours of Theme, its style and its fonts to the application.
namespace Theme {

/// Loads the fonts in a folder, whether or not the machine has them. A missing folder is no error. Call
/// before the first apply().
void loadFonts(const QString& folder);
/// Sets style, palette and fonts for the whole program. Also loads Qt's German texts and makes German the
/// locale of dates and numbers. Call again to change the mode.
void apply(QApplication& application, Mode mode);
/// Dark if the desktop asks for it. Call before the first apply(), which replaces the desktop's palette.
Mode desktopMode(const QApplication& application);

} // namespace Theme
