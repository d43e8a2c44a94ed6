#pragma once

#include <QPalette>

class QIcon;
class QString;
class QWidget;

/// The program's one look: the blue of the overview's child tables (172, 199, 247) and its darker relatives
/// for the bar and the headings, neutral greys, one accent for focus and selection; spacing in multiples of
/// four.
namespace Theme {

enum class Mode { Light, Dark };

Mode mode();
/// Sets style, palette and fonts for the whole program. Also loads Qt's German texts and makes German the
/// locale of dates and numbers. Call again to change the mode.
void apply(Mode mode);
/// Loads the fonts in a folder, whether or not the machine has them. A missing folder is no error. Call
/// before the first apply().
void loadFonts(const QString& folder);
/// Dark if the desktop asks for it. Call before the first apply(), which replaces the desktop's palette.
Mode desktopMode();
/// The palette's role for headingInk(): Qt's own drawing has no use for it.
constexpr QPalette::ColorRole headingRole = QPalette::BrightText;

QColor blue();     ///< (172, 199, 247)
QColor darkBlue(); ///< a ground for white text in both modes: bar and headings
QColor accent();   ///< focus and selection

QColor headingInk(); ///< text of headings, legible on the window in both modes
QColor fault();      ///< border of a field whose text can't be right
QColor outline();    ///< border of fields and keys
QColor faintLine();  ///< border of frames, separators
QColor barGround();
QColor toolbarGround(); ///< toolbars and the status bar
QColor barItemGround(bool current, bool hovered, bool pressed);

/// A colour between two: share 0 gives `from`, 1 gives `to`.
QColor mixed(const QColor& from, const QColor& to, double share);
/// One of the program's own icons (assets/icons/NAME.svg), sharp at any scale and legible in both modes.
QIcon icon(const QString& name);

/// Draws the ground of a toolbar, the status bar or the navigation bar, with a line along its edge `end`.
/// Call in its paintEvent().
void paintBar(QWidget* bar, const QColor& ground, Qt::Edge end);

/// Draws the border of a text, combo or date box in the colour above.
void setFaulty(QWidget* field, bool on);
bool isFaulty(const QWidget* field);

} // namespace Theme
