#pragma once

#include "Value.h"

#include <QFile>
#include <QString>
#include <string>

/// A file for an office program in Windows-1252. Each field ends with ";", each line with carriage return and
/// line feed; nothing is quoted. Spaces at the end of a field are removed. A field with a fixed length is cut
/// to it; with Fill::Padded it is filled up with spaces.
///
/// Error 76 if the folder is missing, 70 if the file can't be written or is open in the office program, 61 if
/// the disk is full. After any error, the caller's own too, lines written before stay in the file.
class CsvDatei {
public:
    enum class Fill { Trimmed, Padded };

    /// Overwrites an existing file.
    explicit CsvDatei(const QString& path);
    ~CsvDatei();
    CsvDatei(const CsvDatei&) = delete;
    CsvDatei& operator=(const CsvDatei&) = delete;

    void writeHead(const QString& head);
    void writeText(QStringView text);
    void writeText(QStringView text, int length, Fill fill = Fill::Trimmed);
    /// A field of a record as text, with dates in the short form. Null is empty.
    void writeField(const Value& field);
    /// A grid's cell as shown on the screen. Null is empty.
    void writeField(const Value& cell, int length, Fill fill = Fill::Trimmed);
    void endLine();
    void close();

private:
    void fillUp(qsizetype written, int length, Fill fill);
    void flush();

    QFile m_file;
    std::string m_buffer;
};
