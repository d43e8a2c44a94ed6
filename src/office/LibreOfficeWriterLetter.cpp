#include "LibreOfficeWriterLetter.h"

#include "LibreOfficeWriterPackage.h"
#include "LibreOfficeWriterSource.h"

#include <QXmlStreamWriter>

namespace {

/// Writes each space as an element: as plain characters, several in a row or at the beginning of a line would
/// be lost.
void writeText(QXmlStreamWriter& xml, const QString& text) {
    for (const QChar sign : text) {
        if (sign == u' ')
            xml.writeEmptyElement(u"text:s"_qs);
        else
            xml.writeCharacters(sign);
    }
}

void writeField(QXmlStreamWriter& xml, const QString& name) {
    xml.writeStartElement(u"text:database-display"_qs);
    xml.writeAttribute(u"text:column-name"_qs, name);
    xml.writeAttribute(u"text:table-name"_qs, LibreOfficeWriterSource::query());
    xml.writeAttribute(u"text:table-type"_qs, u"query"_qs);
    xml.writeAttribute(u"text:database-name"_qs, LibreOfficeWriterSource::name());
    xml.writeCharacters(u'<' + name + u'>');
    xml.writeEndElement();
}

void writeDefaultStyle(QXmlStreamWriter& xml) {
    xml.writeStartElement(u"office:styles"_qs);
    xml.writeStartElement(u"style:default-style"_qs);
    xml.writeAttribute(u"style:family"_qs, u"paragraph"_qs);
    xml.writeEmptyElement(u"style:text-properties"_qs);
    xml.writeAttribute(u"fo:font-family"_qs, u"Arial"_qs);
    xml.writeAttribute(u"fo:font-size"_qs, u"11pt"_qs);
    xml.writeAttribute(u"fo:language"_qs, u"de"_qs);
    xml.writeAttribute(u"fo:country"_qs, u"DE"_qs);
    xml.writeEndElement();
    xml.writeEndElement();
}

/// German letter paper: A4, with space for the holes on the left.
void writePage(QXmlStreamWriter& xml) {
    xml.writeStartElement(u"office:automatic-styles"_qs);
    xml.writeStartElement(u"style:page-layout"_qs);
    xml.writeAttribute(u"style:name"_qs, u"A4"_qs);
    xml.writeEmptyElement(u"style:page-layout-properties"_qs);
    xml.writeAttribute(u"fo:page-width"_qs, u"21cm"_qs);
    xml.writeAttribute(u"fo:page-height"_qs, u"29.7cm"_qs);
    xml.writeAttribute(u"style:print-orientation"_qs, u"portrait"_qs);
    xml.writeAttribute(u"fo:margin-top"_qs, u"2.5cm"_qs);
    xml.writeAttribute(u"fo:margin-bottom"_qs, u"2cm"_qs);
    xml.writeAttribute(u"fo:margin-left"_qs, u"2.5cm"_qs);
    xml.writeAttribute(u"fo:margin-right"_qs, u"2cm"_qs);
    xml.writeEndElement();
    xml.writeEndElement();
    xml.writeStartElement(u"office:master-styles"_qs);
    xml.writeEmptyElement(u"style:master-page"_qs);
    xml.writeAttribute(u"style:name"_qs, u"Standard"_qs);
    xml.writeAttribute(u"style:page-layout-name"_qs, u"A4"_qs);
    xml.writeEndElement();
}

QByteArray styles() {
    return packageXml(u"office:document-styles"_qs, [](QXmlStreamWriter& xml) {
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
    return packageXml(u"office:document-content"_qs, [this](QXmlStreamWriter& xml) {
        xml.writeStartElement(u"office:body"_qs);
        xml.writeStartElement(u"office:text"_qs);
        for (const Paragraph& paragraph : m_paragraphs) {
            xml.writeStartElement(u"text:p"_qs);
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
