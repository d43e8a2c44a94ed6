#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <initializer_list>

// Checks that the boxes of a screen are filled, before they are saved.

namespace modRun {

/// A control of a form and what it holds.
struct Eingabe {
    Eingabe(QLineEdit* box)
        : feld(box)
        , leer(box->text().isEmpty()) {}
    Eingabe(QComboBox* list)
        : feld(list)
        , leer(list->currentText().isEmpty()) {}
    Eingabe(QWidget* control, bool empty)
        : feld(control)
        , leer(empty) {}

    QWidget* feld;
    bool leer;
};

/// The first control that must be filled and is not; null if all are.
QWidget* erstesLeere(std::initializer_list<Eingabe> eingaben);
/// True without a control at fault; otherwise MeldeEingabeFehler has told it.
bool fehlerfrei(QWidget* schuld);

} // namespace modRun
