#pragma once

#include <QByteArray>
#include <QString>

/// The data source of a letter, embedded in it: a file of fields closed by ";" in Windows-1252 that lies in
/// the letter's own folder, its first line being the names of the fields.
///
/// The office guesses from the first lines what kind a column is, and would make 1067 of the postal code
/// 01067. So it is told to take the line of names for a record, which makes every column a text, and the
/// letter takes its records from a query that gives the columns their names and leaves that record out.
namespace LibreOfficeWriterSource {

/// The name under which the letter's fields and settings speak of it, and that of the query.
QString name();
QString query();

/// `settings.xml` of the letter.
QByteArray settings();
/// `content.xml` of the embedded database. Error 53 if the file can't be read.
QByteArray database(const QString& dataFile);

} // namespace LibreOfficeWriterSource
