#include "LibreOfficeWriterSource.h"

#include "CodePage.h"
#include "LibreOfficeWriterPackage.h"
#include "RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamWriter>

namespace LibreOfficeWriterSource {

namespace {

QStringList namesOfFields(const QString& dataFile) {
    QFile file(dataFile);
    if (!file.open(QIODevice::ReadOnly)) throw runtimeError(RuntimeError::fileNotFound);
    return fromWindows1252(file.readLine()).trimmed().split(u';', Qt::SkipEmptyParts);
}

QString quoted(QString text, QChar mark) { return mark + text.replace(mark, QString(2, mark)) + mark; }

/// LibreOffice calls columns without a header line C1, C2 and so on.
QString selectOf(const QString& dataFile) {
    const QStringList names = namesOfFields(dataFile);
    QStringList columns;
    for (const QString& field : names)
        columns += u"\"C%1\" AS "_qs.arg(columns.size() + 1) + quoted(field, u'"');
    return u"SELECT "_qs + columns.join(u", "_qs) + u" FROM "_qs +
           quoted(QFileInfo(dataFile).completeBaseName(), u'"') + u" WHERE \"C1\" <> "_qs +
           quoted(names.value(0), u'\'');
}

void writeItem(QXmlStreamWriter& xml, const QString& key, const QString& type, const QString& value) {
    xml.writeStartElement(u"config:config-item"_qs);
    xml.writeAttribute(u"config:name"_qs, key);
    xml.writeAttribute(u"config:type"_qs, type);
    xml.writeCharacters(value);
    xml.writeEndElement();
}

void writeSetting(QXmlStreamWriter& xml, const QString& key, const QString& type, const QString& value) {
    xml.writeStartElement(u"db:data-source-setting"_qs);
    xml.writeAttribute(u"db:data-source-setting-is-list"_qs, u"false"_qs);
    xml.writeAttribute(u"db:data-source-setting-name"_qs, key);
    xml.writeAttribute(u"db:data-source-setting-type"_qs, type);
    xml.writeTextElement(u"db:data-source-setting-value"_qs, value);
    xml.writeEndElement();
}

/// The link goes up twice: out of the embedded database, then out of the letter.
void writeConnection(QXmlStreamWriter& xml, const QString& ending) {
    xml.writeStartElement(u"db:connection-data"_qs);
    xml.writeStartElement(u"db:database-description"_qs);
    xml.writeEmptyElement(u"db:file-based-database"_qs);
    xml.writeAttribute(u"xlink:href"_qs, u"../../"_qs);
    xml.writeAttribute(u"db:media-type"_qs, u"text/csv"_qs);
    xml.writeAttribute(u"db:extension"_qs, ending);
    xml.writeEndElement();
    xml.writeEmptyElement(u"db:login"_qs);
    xml.writeAttribute(u"db:is-password-required"_qs, u"false"_qs);
    xml.writeEndElement();
}

void writeFormOfFile(QXmlStreamWriter& xml) {
    xml.writeStartElement(u"db:driver-settings"_qs);
    xml.writeAttribute(u"db:is-first-row-header-line"_qs, u"false"_qs);
    xml.writeEmptyElement(u"db:font-charset"_qs);
    xml.writeAttribute(u"db:encoding"_qs, u"windows-1252"_qs);
    xml.writeEmptyElement(u"db:delimiter"_qs);
    xml.writeAttribute(u"db:field"_qs, u";"_qs);
    xml.writeAttribute(u"db:string"_qs, QString());
    xml.writeAttribute(u"db:decimal"_qs, u","_qs);
    xml.writeAttribute(u"db:thousand"_qs, QString());
    xml.writeEndElement();
}

void writeSettings(QXmlStreamWriter& xml, const QString& ending) {
    xml.writeStartElement(u"db:application-connection-settings"_qs);
    xml.writeStartElement(u"db:data-source-settings"_qs);
    writeSetting(xml, u"Extension"_qs, u"string"_qs, ending);
    writeSetting(xml, u"MaxRowScan"_qs, u"int"_qs, u"1"_qs);
    xml.writeEndElement();
    xml.writeEndElement();
}

} // namespace

QString name() { return u"Uferwart-Serienbrief"_qs; }

QString query() { return u"Serienbrief"_qs; }

QByteArray settings() {
    return packageXml(u"office:document-settings"_qs, [](QXmlStreamWriter& xml) {
        constexpr int aQuery = 1;
        xml.writeStartElement(u"office:settings"_qs);
        xml.writeStartElement(u"config:config-item-set"_qs);
        xml.writeAttribute(u"config:name"_qs, u"ooo:configuration-settings"_qs);
        writeItem(xml, u"EmbeddedDatabaseName"_qs, u"string"_qs, u"EmbeddedDatabase"_qs);
        writeItem(xml, u"CurrentDatabaseDataSource"_qs, u"string"_qs, name());
        writeItem(xml, u"CurrentDatabaseCommand"_qs, u"string"_qs, query());
        writeItem(xml, u"CurrentDatabaseCommandType"_qs, u"int"_qs, QString::number(aQuery));
    });
}

QByteArray database(const QString& dataFile) {
    return packageXml(u"office:document-content"_qs, [&](QXmlStreamWriter& xml) {
        const QString ending = QFileInfo(dataFile).suffix();
        xml.writeStartElement(u"office:body"_qs);
        xml.writeStartElement(u"office:database"_qs);
        xml.writeStartElement(u"db:data-source"_qs);
        writeConnection(xml, ending);
        writeFormOfFile(xml);
        writeSettings(xml, ending);
        xml.writeEndElement();
        xml.writeStartElement(u"db:queries"_qs);
        xml.writeEmptyElement(u"db:query"_qs);
        xml.writeAttribute(u"db:name"_qs, query());
        xml.writeAttribute(u"db:command"_qs, selectOf(dataFile));
    });
}

} // namespace LibreOfficeWriterSource
