#include "LibreOfficeWriterSource.h"

#include "CodePage.h"
#include "LibreOfficeWriterPackage.h"
#include "RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

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
        columns += u"\"C%1\" AS "_s.arg(columns.size() + 1) + quoted(field, u'"');
    return u"SELECT "_s + columns.join(u", "_s) + u" FROM "_s +
           quoted(QFileInfo(dataFile).completeBaseName(), u'"') + u" WHERE \"C1\" <> "_s +
           quoted(names.value(0), u'\'');
}

void writeItem(QXmlStreamWriter& xml, const QString& key, const QString& type, const QString& value) {
    xml.writeStartElement(u"config:config-item"_s);
    xml.writeAttribute(u"config:name"_s, key);
    xml.writeAttribute(u"config:type"_s, type);
    xml.writeCharacters(value);
    xml.writeEndElement();
}

void writeSetting(QXmlStreamWriter& xml, const QString& key, const QString& type, const QString& value) {
    xml.writeStartElement(u"db:data-source-setting"_s);
    xml.writeAttribute(u"db:data-source-setting-is-list"_s, u"false"_s);
    xml.writeAttribute(u"db:data-source-setting-name"_s, key);
    xml.writeAttribute(u"db:data-source-setting-type"_s, type);
    xml.writeTextElement(u"db:data-source-setting-value"_s, value);
    xml.writeEndElement();
}

/// The link goes up twice: out of the embedded database, then out of the letter.
void writeConnection(QXmlStreamWriter& xml, const QString& ending) {
    xml.writeStartElement(u"db:connection-data"_s);
    xml.writeStartElement(u"db:database-description"_s);
    xml.writeEmptyElement(u"db:file-based-database"_s);
    xml.writeAttribute(u"xlink:href"_s, u"../../"_s);
    xml.writeAttribute(u"db:media-type"_s, u"text/csv"_s);
    xml.writeAttribute(u"db:extension"_s, ending);
    xml.writeEndElement();
    xml.writeEmptyElement(u"db:login"_s);
    xml.writeAttribute(u"db:is-password-required"_s, u"false"_s);
    xml.writeEndElement();
}

void writeFormOfFile(QXmlStreamWriter& xml) {
    xml.writeStartElement(u"db:driver-settings"_s);
    xml.writeAttribute(u"db:is-first-row-header-line"_s, u"false"_s);
    xml.writeEmptyElement(u"db:font-charset"_s);
    xml.writeAttribute(u"db:encoding"_s, u"windows-1252"_s);
    xml.writeEmptyElement(u"db:delimiter"_s);
    xml.writeAttribute(u"db:field"_s, u";"_s);
    xml.writeAttribute(u"db:string"_s, QString());
    xml.writeAttribute(u"db:decimal"_s, u","_s);
    xml.writeAttribute(u"db:thousand"_s, QString());
    xml.writeEndElement();
}

void writeSettings(QXmlStreamWriter& xml, const QString& ending) {
    xml.writeStartElement(u"db:application-connection-settings"_s);
    xml.writeStartElement(u"db:data-source-settings"_s);
    writeSetting(xml, u"Extension"_s, u"string"_s, ending);
    writeSetting(xml, u"MaxRowScan"_s, u"int"_s, u"1"_s);
    xml.writeEndElement();
    xml.writeEndElement();
}

} // namespace

QString name() { return u"Uferwart-Serienbrief"_s; }

QString query() { return u"Serienbrief"_s; }

QByteArray settings() {
    return packageXml(u"office:document-settings"_s, [](QXmlStreamWriter& xml) {
        constexpr int aQuery = 1;
        xml.writeStartElement(u"office:settings"_s);
        xml.writeStartElement(u"config:config-item-set"_s);
        xml.writeAttribute(u"config:name"_s, u"ooo:configuration-settings"_s);
        writeItem(xml, u"EmbeddedDatabaseName"_s, u"string"_s, u"EmbeddedDatabase"_s);
        writeItem(xml, u"CurrentDatabaseDataSource"_s, u"string"_s, name());
        writeItem(xml, u"CurrentDatabaseCommand"_s, u"string"_s, query());
        writeItem(xml, u"CurrentDatabaseCommandType"_s, u"int"_s, QString::number(aQuery));
    });
}

QByteArray database(const QString& dataFile) {
    return packageXml(u"office:document-content"_s, [&](QXmlStreamWriter& xml) {
        const QString ending = QFileInfo(dataFile).suffix();
        xml.writeStartElement(u"office:body"_s);
        xml.writeStartElement(u"office:database"_s);
        xml.writeStartElement(u"db:data-source"_s);
        writeConnection(xml, ending);
        writeFormOfFile(xml);
        writeSettings(xml, ending);
        xml.writeEndElement();
        xml.writeStartElement(u"db:queries"_s);
        xml.writeEmptyElement(u"db:query"_s);
        xml.writeAttribute(u"db:name"_s, query());
        xml.writeAttribute(u"db:command"_s, selectOf(dataFile));
    });
}

} // namespace LibreOfficeWriterSource
