#pragma once

#include <QString>
#include <QStringList>

// Names of months and weekdays.

namespace modRun {

/// The twelve, in the order of the year.
const QStringList& Monatsnamen();
/// 1 to 12; any other number is told in a box and gives "Januar".
QString ErmittleMonatsname(qint32 number);
/// The names above, compared exactly; any other text is told in a box and gives 1.
qint16 ErmittleMonatsNr(const QString& name);
/// 1 (Sunday) to 7; any other number gives the empty text.
QString WochentagName(int number);

} // namespace modRun
