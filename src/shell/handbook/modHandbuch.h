#pragma once

#include <QString>

class QWidget;

/// The key F1: opens the handbook at the page of the user's screen.
namespace modHandbuch {

/// The page for the screen of this name, without folder and ending.
QString SeiteFuer(const QString& screen);

/// Opens the handbook at the page of the screen that contains `focused`. For a message box this is the screen
/// below it.
void ZeigeHandbuch(const QWidget* focused);

} // namespace modHandbuch
