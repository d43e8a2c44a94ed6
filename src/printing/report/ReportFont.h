#pragma once

#include <QFont>
#include <QStringList>

/// The font of all reports: Arial, measured in units of ReportTypesetter, independently of any device.
namespace ReportFont {

QFont font(double points, bool bold);

/// Breaks a text into at most `most` lines, at its own line breaks and between words. The last line takes all
/// the rest.
QStringList lines(QString text, const QFont& font, double width, int most);

} // namespace ReportFont
