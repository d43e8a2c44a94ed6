#pragma once

#include "Value.h"

#include <QFile>
#include <QString>
#include <string>

/// A file for an office program: fields closed by ";", lines by carriage return and line feed, in
/// Windows-1252, nothing quoted. Blanks at the end of a field are cut off. A field may be given a fixed
/// length, beyond which it is cut off; the blanks that fill it up stay only where asked for.
/// Any failure is an error: 76 the folder is missing, 70 the file is not to be written or held open by the
/// office program, 61 the disk is full. What was written before an error stays in the file, whoever's error
/// it is.
class CsvDatei {
public:
    enum class Fill { Trimmed, Padded };

    /// Takes the place of a file that is there.
    explicit CsvDatei(const QString& path);
    ~CsvDatei();
    CsvDatei(const CsvDatei&) = delete;
    CsvDatei& operator=(const CsvDatei&) = delete;

    void writeHead(const QString& head);
    void writeText(QStringView text);
    void writeText(QStringView text, int length, Fill fill = Fill::Trimmed);
    /// A field as text, dates in the short form; Null is empty.
    void writeField(const Value& field);
    /// A cell as it stands on the screen; Null is empty.
    void writeField(const Value& cell, int length, Fill fill = Fill::Trimmed);
    void endLine();
    void close();

private:
    void fillUp(qsizetype written, int length, Fill fill);
    void flush();

    QFile m_file;
    std::string m_buffer;
};
