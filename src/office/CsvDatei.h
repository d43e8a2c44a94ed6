#pragma once

#include "Value.h"

#include <QFile>
#include <QString>
#include <limits>
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

    /// The path of a file in the folder SeqData of the program folder. Finds an existing file without regard
    /// to case, since the routines spell the same name in several ways.
    static QString path(const QString& programFolder, const QString& name);

    /// Overwrites an existing file.
    explicit CsvDatei(const QString& path);
    ~CsvDatei();

    void writeText(QStringView text, int length = unlimited);
    /// A value as text, with dates in the short form. Null is empty.
    void writeField(const Value& value, int length = unlimited, Fill fill = Fill::Trimmed);
    void endLine();
    void close();

private:
    static constexpr int unlimited = std::numeric_limits<int>::max();

    void flush();

    QFile m_file;
    std::string m_buffer;
};
