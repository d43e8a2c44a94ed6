#pragma once

#include <QByteArray>
#include <QString>

/// A form letter: paragraphs of text and of fields that the mail merge fills.
class LibreOfficeWriterLetter {
public:
    void typeText(const QString& text);
    void typeParagraph();
    void insertField(const QString& name);

    /// The letter as an OpenDocument file, which takes its records from the data file: fields ended by ";",
    /// Windows-1252, the fields' names in the first line. Store both in the same folder. Error 53 if the data
    /// file can't be read.
    QByteArray package(const QString& dataFile) const;

private:
    QString m_content; ///< XML
};
