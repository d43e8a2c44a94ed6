#pragma once

#include <QFont>
#include <QStringList>

/// The letters of all reports: Arial, measured without any device in units of ReportTypesetter.
namespace ReportFont {

QFont font(double points, bool bold);

/// The text cut into lines at its own breaks and between words. The last of at most `most` lines takes all
/// the rest.
QStringList lines(QString text, const QFont& font, double width, int most);

} // namespace ReportFont
