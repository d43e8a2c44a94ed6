#include "LibreOfficeWriterLetter.h"

#include "LibreOfficeWriterPackage.h"
#include "LibreOfficeWriterSource.h"

#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace {

/// Writes each space as an element: as plain characters, several in a row or at the beginning of a line would
/// be lost.
void writeText(QXmlStreamWriter& xml, const QString& text) {
    for (const QChar sign : text) {
        if (sign == u' ')
            xml.writeEmptyElement(u"text:s"_s);
        else
            xml.writeCharacters(sign);
    }
}

void writeField(QXmlStreamWriter& xml, const QString& name) {
    xml.writeStartElement(u"text:database-display"_s);
    xml.writeAttribute(u"text:column-name"_s, name);
    xml.writeAttribute(u"text:table-name"_s, LibreOfficeWriterSource::query());
    xml.writeAttribute(u"text:table-type"_s, u"query"_s);
    xml.writeAttribute(u"text:database-name"_s, LibreOfficeWriterSource::name());
    xml.writeCharacters(u'<' + name + u'>');
    xml.writeEndElement();
}

void writeDefaultStyle(QXmlStreamWriter& xml) {
    xml.writeStartElement(u"office:styles"_s);
    xml.writeStartElement(u"style:default-style"_s);
    xml.writeAttribute(u"style:family"_s, u"paragraph"_s);
    xml.writeEmptyElement(u"style:text-properties"_s);
    xml.writeAttribute(u"fo:font-family"_s, u"Arial"_s);
    xml.writeAttribute(u"fo:font-size"_s, u"11pt"_s);
    xml.writeAttribute(u"fo:language"_s, u"de"_s);
    xml.writeAttribute(u"fo:country"_s, u"DE"_s);
    xml.writeEndElement();
    xml.writeEndElement();
}

/// German letter paper: A4, with space for the holes on the left.
void writePage(QXmlStreamWriter& xml) {
    xml.writeStartElement(u"office:automatic-styles"_s);
    xml.writeStartElement(u"style:page-layout"_s);
    xml.writeAttribute(u"style:name"_s, u"A4"_s);
    xml.writeEmptyElement(u"style:page-layout-properties"_s);
    xml.writeAttribute(u"fo:page-width"_s, u"21cm"_s);
    xml.writeAttribute(u"fo:page-height"_s, u"29.7cm"_s);
    xml.writeAttribute(u"style:print-orientation"_s, u"portrait"_s);
    xml.writeAttribute(u"fo:margin-top"_s, u"2.5cm"_s);
    xml.writeAttribute(u"fo:margin-bottom"_s, u"2cm"_s);
    xml.writeAttribute(u"fo:margin-left"_s, u"2.5cm"_s);
    xml.writeAttribute(u"fo:margin-right"_s, u"2cm"_s);
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeStartElement(u"office:master-styles"_s);
    xml.writeEmptyElement(u"style:master-page"_s);
    xml.writeAttribute(u"style:name"_s, u"Standard"_s);
    xml.writeAttribute(u"style:page-layout-name"_s, u"A4"_s);
    xml.writeEndElement();
}

QByteArray styles() {
    return packageXml(u"office:document-styles"_s, [](QXmlStreamWriter& xml) {
        writeDefaultStyle(xml);
        writePage(xml);
    });
}

} // namespace

void LibreOfficeWriterLetter::typeText(const QString& text) { m_paragraphs.back().push_back({false, text}); }

void LibreOfficeWriterLetter::typeParagraph() { m_paragraphs.emplace_back(); }

void LibreOfficeWriterLetter::insertField(const QString& name) {
    m_paragraphs.back().push_back({true, name});
}

void LibreOfficeWriterLetter::writePiece(QXmlStreamWriter& xml, const Piece& piece) {
    piece.isField ? writeField(xml, piece.text) : writeText(xml, piece.text);
}

QByteArray LibreOfficeWriterLetter::content() const {
    return packageXml(u"office:document-content"_s, [this](QXmlStreamWriter& xml) {
        xml.writeStartElement(u"office:body"_s);
        xml.writeStartElement(u"office:text"_s);
        for (const Paragraph& paragraph : m_paragraphs) {
            xml.writeStartElement(u"text:p"_s);
            for (const Piece& piece : paragraph) writePiece(xml, piece);
            xml.writeEndElement();
        }
    });
}

QByteArray LibreOfficeWriterLetter::package(const QString& dataFile) const {
    const char* xml = "text/xml";
    return officePackage(
        "application/vnd.oasis.opendocument.text",
        {{"content.xml", xml, content()},
         {"styles.xml", xml, styles()},
         {"settings.xml", xml, LibreOfficeWriterSource::settings()},
         {"EmbeddedDatabase/", "application/vnd.oasis.opendocument.base", {}},
         {"EmbeddedDatabase/content.xml", xml, LibreOfficeWriterSource::database(dataFile)}});
}
