#pragma once

#include <QWidget>

// Message boxes that several screens show.

namespace modRun {

void MeldeNichtVorhanden();
void MeldeNichtsGefunden();
/// Leaves the focus in `schuld`, the control with the wrong entry.
void MeldeEingabeFehler(QWidget* schuld);
void MeldeAbgebrochen();
void MeldeKeinZugriff();

/// Asks a question with the buttons yes and no. Returns true for yes and sets Session::MsgAntwort.
bool frage(const QString& text, const QString& title = QStringLiteral("Uferwart"));

} // namespace modRun
