#pragma once

#include "Heading.h"
#include "Toolbar.h"
#include "ValueLabel.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <utility>

/// The building blocks of a screen's layout: labels left of their fields in common rows, frames, a heading
/// with the toolbar below it. Distances are multiples of four.
namespace Layout {

constexpr int gap = 8;

/// A label that shows plain text, never markup.
QLabel* label(QStringView name, QStringView text, QWidget* parent);
QGroupBox* frame(QStringView name, QStringView title, QWidget* parent);
QCheckBox* checkBox(QStringView name, QStringView caption, QWidget* parent);
QRadioButton* option(QStringView name, QStringView caption, QWidget* parent);
QPushButton* button(QStringView name, QStringView caption, QWidget* parent);
/// One of the program's own pictures (see Theme::icon).
QLabel* picture(QStringView name, QStringView icon, QSize size, QWidget* parent);

/// The outermost layout of a window.
QVBoxLayout* column(QWidget* window);
/// Parts one below the other, without margins. Room that is left goes to `highest`.
QVBoxLayout* stack(QWidget* window, const QVector<QWidget*>& parts, QWidget* highest = nullptr);
/// Lays out a screen on the stage: heading, toolbar and a column for the rest. Returns the column for the
/// rest.
QVBoxLayout* column(QWidget* screen, Heading* heading, Toolbar* toolbar);
/// The same with these parts one below the other. Height that is left goes to `highest`.
void column(QWidget* screen, Heading* heading, Toolbar* toolbar, const QVector<QWidget*>& parts,
            QWidget* highest);
/// Adds a page. Returns the column inside it.
QVBoxLayout* page(QTabWidget* tabs, const QString& caption);

/// A row without margins, on a widget of its own (its parentWidget()).
QHBoxLayout* line(QWidget* parent);
/// A row of these parts, on a widget of its own. Room that is left goes to `widest`, or else behind the last.
QWidget* line(QWidget* parent, const QVector<QWidget*>& parts, QWidget* widest = nullptr);
/// A toolbar with the keys of most screens with an entry form: save, delete, empty.
Toolbar* recordToolbar(QWidget* screen, const Toolbar::Handler& save, const Toolbar::Handler& remove,
                       const Toolbar::Handler& empty);
/// The layout of a frame in which fields stand in rows.
QGridLayout* form(QWidget* frame);
/// A row of a form. The label becomes the field's name for screen readers.
void addField(QGridLayout* screen, int row, QLabel* label, QWidget* field, int column = 0);
/// The first rows of a form, one below the other.
void addFields(QGridLayout* screen, std::initializer_list<std::pair<QLabel*, QWidget*>> fields,
               int column = 0);
/// A count or a sum behind its caption, which becomes its name for screen readers.
void addCount(QHBoxLayout* row, QLabel* caption, ValueLabel* value);

} // namespace Layout
