#pragma once

#include <QStringList>

// Names of months and weekdays.

namespace modRun {

/// The twelve months, from Januar on.
const QStringList& Monatsnamen();
/// The name of month 1 to 12. Any other number shows a message box and gives "Januar".
QString ErmittleMonatsname(qint32 number);
/// The number of a month by its exact name. Any other text shows a message box and gives 1.
qint16 ErmittleMonatsNr(const QString& name);
/// The name of weekday 1 (Sunday) to 7. Any other number gives the empty text.
QString WochentagName(int number);

} // namespace modRun
