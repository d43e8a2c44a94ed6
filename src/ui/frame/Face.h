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

/// What the faces of the screens are made of: labels left of their fields on common lines, frames, a heading
/// with the toolbar below it. Distances are multiples of four.
namespace Face {

constexpr int gap = 8;

/// A plain text label.
QLabel* label(const QString& name, const QString& text, QWidget* parent);
QGroupBox* frame(const QString& name, const QString& title, QWidget* parent);
QCheckBox* checkBox(const QString& name, const QString& caption, QWidget* parent);
QRadioButton* option(const QString& name, const QString& caption, QWidget* parent);
QPushButton* button(const QString& name, const QString& caption, QWidget* parent);

/// The column that holds everything on a window.
QVBoxLayout* column(QWidget* window);
/// The column of a screen on the stage: heading, toolbar, and room for the rest. It is the rest that is
/// returned.
QVBoxLayout* column(QWidget* screen, Heading* heading, Toolbar* toolbar);

/// A line without a frame of its own, on a widget of its own (parentWidget).
QHBoxLayout* line(QWidget* parent);
/// The keys that most screens with an entry form begin with: save, delete, empty.
void addRecordKeys(Toolbar* toolbar, const Toolbar::Handler& save, const Toolbar::Handler& remove,
                   const Toolbar::Handler& empty);
/// A row of a form. The label becomes the field's name for screen readers.
void addField(QGridLayout* form, int row, QLabel* label, QWidget* field, int column = 0);

} // namespace Face
