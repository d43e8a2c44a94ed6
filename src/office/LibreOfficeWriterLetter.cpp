#include "LibreOfficeWriterLetter.h"

#include "CodePage.h"
#include "RuntimeError.h"
#include "ZipFile.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString fieldElement =
    u"<text:database-display text:column-name=\"%1\" text:table-name=\"Serienbrief\" "
    u"text:table-type=\"query\" "
    u"text:database-name=\"Uferwart-Serienbrief\">&lt;%1&gt;</text:database-display>"_s;

/// German letter paper: A4, with space for the holes on the left.
const QString styles = uR"(
    <office:styles>
        <style:default-style style:family="paragraph">
            <style:text-properties fo:font-family="Arial" fo:font-size="11pt"
                fo:language="de" fo:country="DE"/>
        </style:default-style>
    </office:styles>
    <office:automatic-styles>
        <style:page-layout style:name="A4">
            <style:page-layout-properties fo:page-width="21cm" fo:page-height="29.7cm"
                style:print-orientation="portrait"
                fo:margin-top="2.5cm" fo:margin-bottom="2cm" fo:margin-left="2.5cm" fo:margin-right="2cm"/>
        </style:page-layout>
    </office:automatic-styles>
    <office:master-styles>
        <style:master-page style:name="Standard" style:page-layout-name="A4"/>
    </office:master-styles>)"_s;

/// Names the data source. Command type 1 is a query.
const QString settings = uR"(
    <office:settings>
        <config:config-item-set config:name="ooo:configuration-settings">
            <config:config-item config:name="EmbeddedDatabaseName"
                config:type="string">EmbeddedDatabase</config:config-item>
            <config:config-item config:name="CurrentDatabaseDataSource"
                config:type="string">Uferwart-Serienbrief</config:config-item>
            <config:config-item config:name="CurrentDatabaseCommand"
                config:type="string">Serienbrief</config:config-item>
            <config:config-item config:name="CurrentDatabaseCommandType"
                config:type="int">1</config:config-item>
        </config:config-item-set>
    </office:settings>)"_s;

/// The data source for a file with the ending %1, read by the query %2. The link goes up twice: out of the
/// embedded database, then out of the letter.
///
/// LibreOffice guesses a column's type from the first lines and would read the postal code 01067 as 1067. So
/// the line of names is declared a record, which makes every column text. The letter then reads from a query
/// that renames the columns and omits that record.
const QString database = uR"(
    <office:body>
        <office:database>
            <db:data-source>
                <db:connection-data>
                    <db:database-description>
                        <db:file-based-database xlink:href="../../" db:media-type="text/csv"
                            db:extension="%1"/>
                    </db:database-description>
                    <db:login db:is-password-required="false"/>
                </db:connection-data>
                <db:driver-settings db:is-first-row-header-line="false">
                    <db:font-charset db:encoding="windows-1252"/>
                    <db:delimiter db:field=";" db:string="" db:decimal="," db:thousand=""/>
                </db:driver-settings>
                <db:application-connection-settings>
                    <db:data-source-settings>
                        <db:data-source-setting db:data-source-setting-is-list="false"
                            db:data-source-setting-name="Extension" db:data-source-setting-type="string">
                            <db:data-source-setting-value>%1</db:data-source-setting-value>
                        </db:data-source-setting>
                        <db:data-source-setting db:data-source-setting-is-list="false"
                            db:data-source-setting-name="MaxRowScan" db:data-source-setting-type="int">
                            <db:data-source-setting-value>1</db:data-source-setting-value>
                        </db:data-source-setting>
                    </db:data-source-settings>
                </db:application-connection-settings>
            </db:data-source>
            <db:queries>
                <db:query db:name="Serienbrief" db:command="%2"/>
            </db:queries>
        </office:database>
    </office:body>)"_s;

const QString manifest = uR"(
    <manifest:manifest xmlns:manifest="urn:oasis:names:tc:opendocument:xmlns:manifest:1.0"
        manifest:version="1.3">
        <manifest:file-entry manifest:full-path="/"
            manifest:media-type="application/vnd.oasis.opendocument.text"/>
        <manifest:file-entry manifest:full-path="content.xml" manifest:media-type="text/xml"/>
        <manifest:file-entry manifest:full-path="styles.xml" manifest:media-type="text/xml"/>
        <manifest:file-entry manifest:full-path="settings.xml" manifest:media-type="text/xml"/>
        <manifest:file-entry manifest:full-path="EmbeddedDatabase/"
            manifest:media-type="application/vnd.oasis.opendocument.base"/>
        <manifest:file-entry manifest:full-path="EmbeddedDatabase/content.xml"
            manifest:media-type="text/xml"/>
    </manifest:manifest>)"_s;

const QString root = uR"(
    <office:document-%1
        xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
        xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
        xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
        xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
        xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"
        xmlns:config="urn:oasis:names:tc:opendocument:xmlns:config:1.0"
        xmlns:db="urn:oasis:names:tc:opendocument:xmlns:database:1.0"
        xmlns:ooo="http://openoffice.org/2004/office"
        xmlns:xlink="http://www.w3.org/1999/xlink"
        office:version="1.3">%2</office:document-%1>)"_s;

/// Without the line breaks between the elements above.
QString compact(const QString& xml) { return xml.simplified().replace(u"> <"_s, u"><"_s); }

QByteArray file(const QString& xml) {
    return u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>%1\n"_s.arg(xml).toUtf8();
}

QByteArray document(const QString& kind, const QString& content) {
    return file(compact(root).arg(kind, content));
}

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

} // namespace

// Each space is an element: as plain characters, several in a row or at the beginning of a line would be
// lost.
void LibreOfficeWriterLetter::typeText(const QString& text) {
    m_content += text.toHtmlEscaped().replace(u' ', u"<text:s/>"_s);
}

void LibreOfficeWriterLetter::typeParagraph() { m_content += u"</text:p><text:p>"_s; }

void LibreOfficeWriterLetter::insertField(const QString& name) {
    m_content += fieldElement.arg(name.toHtmlEscaped());
}

QByteArray LibreOfficeWriterLetter::package(const QString& dataFile) const {
    QString text =
        u"<office:body><office:text><text:p>%1</text:p></office:text></office:body>"_s.arg(m_content);
    // Earlier versions wrote it so, and the same letter must have the same bytes to be used again.
    text.replace(u"<text:p></text:p>"_s, u"<text:p/>"_s);
    const QString ending = QFileInfo(dataFile).suffix().toHtmlEscaped();
    const QString source = compact(database).arg(ending, selectOf(dataFile).toHtmlEscaped());
    // The type comes first and uncompressed, where programs look to recognise it.
    return zipFile({{"mimetype", "application/vnd.oasis.opendocument.text", ZipPart::Stored},
                    {"content.xml", document(u"content"_s, text)},
                    {"styles.xml", document(u"styles"_s, compact(styles))},
                    {"settings.xml", document(u"settings"_s, compact(settings))},
                    {"EmbeddedDatabase/content.xml", document(u"content"_s, source)},
                    {"META-INF/manifest.xml", file(compact(manifest))}});
}
