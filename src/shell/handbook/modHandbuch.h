#pragma once

#include <QStringList>

class QWidget;

/// The key F1: the handbook, opened where the user stands.
namespace modHandbuch {

/// The page for a screen by its name, without folder and ending: the list of all pages for a screen that has
/// none of its own.
QString SeiteFuer(const QString& screen);
/// The screens that have a page.
QStringList BeschriebeneMasken();

/// Opens the handbook at the page of the screen in which `focused` lies. Of a box it is the screen below.
void ZeigeHandbuch(const QWidget* focused);

} // namespace modHandbuch
