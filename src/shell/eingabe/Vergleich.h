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

    /// Fills the list, and disables both with no comparison chosen. `spoken` is for screen readers.
    void richteEin(const QString& spoken) const;

    /// Clears the choice and the box.
    void leere() const;
    void setEnabled(bool on) const;
};

/// The first control that must still be filled. Null if the filter is not checked or is complete: with both
/// bounds, or with the first one alone.
QWidget* erstesFalsche(const QCheckBox* filter, const Vergleich& first, const Vergleich& second);
