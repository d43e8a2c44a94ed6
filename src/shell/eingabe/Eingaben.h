#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <initializer_list>

// Checks of the entry fields before a record is saved.

namespace modRun {

/// An entry field, and whether it is empty at this moment.
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

/// The control of the first empty field; null if all are filled.
QWidget* erstesLeere(std::initializer_list<Eingabe> eingaben);
/// True if `schuld` is null. Otherwise calls MeldeEingabeFehler for this control.
bool fehlerfrei(QWidget* schuld);

} // namespace modRun
