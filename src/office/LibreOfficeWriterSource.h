#pragma once

#include <QByteArray>
#include <QString>

/// The data source embedded in a letter. It reads a file in the letter's folder: fields ended by ";",
/// Windows-1252, the fields' names in the first line.
///
/// LibreOffice guesses a column's type from the first lines and would read the postal code 01067 as 1067. So
/// the line of names is declared a record, which makes every column text. The letter then reads from a query
/// that renames the columns and omits that record.
namespace LibreOfficeWriterSource {

/// The names of the data source and of its query, as used in the letter's fields and settings.
QString name();
QString query();

/// `settings.xml` of the letter.
QByteArray settings();
/// `content.xml` of the embedded database. Error 53 if the data file can't be read.
QByteArray database(const QString& dataFile);

} // namespace LibreOfficeWriterSource
