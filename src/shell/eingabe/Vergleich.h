#pragma once

#include <QString>

class ComboBox;
class QCheckBox;
class QWidget;
class TextBox;

/// Half of a filter between two bounds: a comparison and what is compared with.
struct Vergleich {
    ComboBox* zeichen;
    TextBox* wert;

    /// Disabled, with the six comparisons to choose from and none chosen; `spoken` is for screen readers.
    static Vergleich neu(const QString& list, const QString& box, const QString& spoken, QWidget* parent);

    bool isEmpty() const;
    /// Chooses nothing and empties the box.
    void leere() const;
    void setEnabled(bool on) const;
};

/// Null if the filter is not ticked or filled: both halves, or the first one alone. Otherwise the first
/// control that lacks something.
QWidget* erstesFalsche(const QCheckBox* filter, const Vergleich& first, const Vergleich& second);
