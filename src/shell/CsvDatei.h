#pragma once

#include "Value.h"

#include <QByteArray>
#include <QFile>
#include <QString>

/// A file for the spreadsheet: fields closed by ";", lines by carriage return and line feed, in Windows-1252,
/// nothing quoted. Each field has a fixed length, beyond which it is cut off; the blanks that fill it up stay
/// only where asked for.
/// Any failure is an error: 76 the folder is missing, 70 the file is not to be written or held open by the
/// spreadsheet, 61 the disk is full.
class CsvDatei {
public:
    enum class Fill { Trimmed, Padded };

    /// Takes the place of a file that is there.
    explicit CsvDatei(const QString& path);

    void writeHead(const QString& head);
    void writeText(QStringView text, int length, Fill fill = Fill::Trimmed);
    /// A cell as it stands on the screen; Null is empty.
    void writeField(const Value& cell, int length, Fill fill = Fill::Trimmed);
    void endLine();
    void close();

private:
    void fillUp(qsizetype written, int length, Fill fill);
    void flush();

    QFile m_file;
    QByteArray m_buffer;
};
