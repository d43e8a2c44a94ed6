#pragma once

#include <QString>

class ComboBox;
class QCheckBox;
class QWidget;
class TextBox;

/// One of the two bounds of a filter: a list of comparisons and a box for the value.
struct Vergleich {
    ComboBox* zeichen;
    TextBox* wert;

    /// Makes both controls, disabled and with no comparison chosen. `list` and `box` are their object names;
    /// `spoken` is for screen readers.
    static Vergleich neu(const QString& list, const QString& box, const QString& spoken, QWidget* parent);

    bool isEmpty() const;
    /// Clears the choice and the box.
    void leere() const;
    void setEnabled(bool on) const;
};

/// The first control that must still be filled. Null if the filter is not checked or is complete: with both
/// bounds, or with the first one alone.
QWidget* erstesFalsche(const QCheckBox* filter, const Vergleich& first, const Vergleich& second);
