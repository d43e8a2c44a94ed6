#pragma once

#include <QString>

class QWidget;

// The message boxes that several screens show.

namespace modRun {

void MeldeNichtVorhanden();
void MeldeNichtsGefunden();
/// Afterwards the focus is in the control at fault.
void MeldeEingabeFehler(QWidget* schuld);
void MeldeAbgebrochen();
void MeldeKeinZugriff();

/// A box with yes and no. MsgAntwort keeps the answer; true if it is yes.
bool frage(const QString& text, const QString& title = QStringLiteral("Uferwart"));

} // namespace modRun
