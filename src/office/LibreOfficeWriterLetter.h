#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

class QXmlStreamWriter;

/// A form letter: paragraphs of text and of fields that the mail merge fills.
class LibreOfficeWriterLetter {
public:
    void typeText(const QString& text);
    void typeParagraph();
    void insertField(const QString& name);

    /// The letter as an OpenDocument file, which takes its records from the data file. Store both in the same
    /// folder. Error 53 if the data file can't be read.
    QByteArray package(const QString& dataFile) const;

private:
    struct Piece {
        bool isField;
        QString text;
    };
    using Paragraph = std::vector<Piece>;

    static void writePiece(QXmlStreamWriter& xml, const Piece& piece);
    QByteArray content() const;

    std::vector<Paragraph> m_paragraphs{1};
};
