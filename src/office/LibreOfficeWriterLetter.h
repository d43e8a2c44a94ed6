#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

class QXmlStreamWriter;

/// A form letter as it is being typed: paragraphs of text and of fields that the merge fills.
class LibreOfficeWriterLetter {
public:
    void typeText(const QString& text);
    void typeParagraph();
    void insertField(const QString& name);

    /// The letter as an OpenDocument file that takes its records from the data file beside it. Error 53 if
    /// that can't be read.
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
