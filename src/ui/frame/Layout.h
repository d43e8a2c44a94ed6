#pragma once

#include "Toolbar.h"

#include <QString>

class Heading;
class QCheckBox;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QRadioButton;
class QVBoxLayout;
class QWidget;

/// The building blocks of a screen's layout: labels left of their fields in common rows, frames, a heading
/// with the toolbar below it. Distances are multiples of four.
namespace Layout {

constexpr int gap = 8;

/// A label that shows plain text, never markup.
QLabel* label(const QString& name, const QString& text, QWidget* parent);
QGroupBox* frame(const QString& name, const QString& title, QWidget* parent);
QCheckBox* checkBox(const QString& name, const QString& caption, QWidget* parent);
QRadioButton* option(const QString& name, const QString& caption, QWidget* parent);
QPushButton* button(const QString& name, const QString& caption, QWidget* parent);

/// The outermost layout of a window.
QVBoxLayout* column(QWidget* window);
/// Lays out a screen on the stage: heading, toolbar and a column for the rest. Returns the column for the
/// rest.
QVBoxLayout* column(QWidget* screen, Heading* heading, Toolbar* toolbar);

/// A row without margins, on a widget of its own (its parentWidget()).
QHBoxLayout* line(QWidget* parent);
/// The keys that most screens with an entry form begin with: save, delete, empty.
void addRecordKeys(Toolbar* toolbar, const Toolbar::Handler& save, const Toolbar::Handler& remove,
                   const Toolbar::Handler& empty);
/// A row of a form. The label becomes the field's name for screen readers.
void addField(QGridLayout* screen, int row, QLabel* label, QWidget* field, int column = 0);

} // namespace Layout
