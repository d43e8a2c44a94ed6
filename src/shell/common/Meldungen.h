#pragma once

class QWidget;

// The message boxes that several screens show.

namespace modRun {

void MeldeNichtVorhanden();
void MeldeNichtsGefunden();
/// Afterwards the focus is in the control at fault.
void MeldeEingabeFehler(QWidget* schuld);
void MeldeAbgebrochen();
void MeldeKeinZugriff();

} // namespace modRun
