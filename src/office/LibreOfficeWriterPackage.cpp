#include "LibreOfficeWriterPackage.h"

#include "RuntimeError.h"

#include <QXmlStreamWriter>
#include <memory>
#include <zip.h>

using namespace Qt::StringLiterals;

namespace {

void require(bool succeeded) {
    if (!succeeded) throw runtimeError(RuntimeError::outOfMemory);
}

struct FreeSource {
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};
using Source = std::unique_ptr<zip_source_t, FreeSource>;

/// An archive in memory.
class Archive {
public:
    Archive()
        : m_bytes(zip_source_buffer_create(nullptr, 0, 0, nullptr)) {
        require(m_bytes != nullptr);
        m_archive = zip_open_from_source(m_bytes.get(), ZIP_TRUNCATE, nullptr);
        require(m_archive != nullptr);
        zip_source_keep(m_bytes.get()); // the archive owns one reference, this object the other
    }
    ~Archive() {
        if (m_archive != nullptr) zip_discard(m_archive);
    }
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;

    /// The content must exist until finish().
    void add(const char* name, const QByteArray& content, bool compressed) {
        Source source(
            zip_source_buffer(m_archive, content.constData(), static_cast<zip_uint64_t>(content.size()), 0));
        require(source != nullptr);
        const zip_int64_t index = zip_file_add(m_archive, name, source.get(), ZIP_FL_ENC_UTF_8);
        require(index >= 0);
        static_cast<void>(source.release()); // the archive owns it now
        const auto place = static_cast<zip_uint64_t>(index);
        zip_set_file_compression(m_archive, place, compressed ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0);
        zip_file_set_dostime(m_archive, place, 0, firstDosDay, 0);
    }

    QByteArray finish() {
        require(zip_close(m_archive) == 0);
        m_archive = nullptr;
        zip_stat_t size;
        require(zip_source_stat(m_bytes.get(), &size) == 0 && zip_source_open(m_bytes.get()) == 0);
        QByteArray bytes(static_cast<qsizetype>(size.size), Qt::Uninitialized);
        const zip_int64_t read = zip_source_read(m_bytes.get(), bytes.data(), size.size);
        zip_source_close(m_bytes.get());
        require(read == static_cast<zip_int64_t>(bytes.size()));
        return bytes;
    }

private:
    static constexpr zip_uint16_t firstDosDay = 0x21; ///< 1 January 1980

    Source m_bytes;
    zip_t* m_archive = nullptr;
};

constexpr const char* manifestNamespace = "urn:oasis:names:tc:opendocument:xmlns:manifest:1.0";

void writeEntry(QXmlStreamWriter& xml, const QString& path, const QString& mediaType) {
    xml.writeEmptyElement(u"manifest:file-entry"_s);
    xml.writeAttribute(u"manifest:full-path"_s, path);
    xml.writeAttribute(u"manifest:media-type"_s, mediaType);
}

QByteArray manifest(const QByteArray& mediaType, const std::vector<PackagePart>& parts) {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    xml.writeStartElement(u"manifest:manifest"_s);
    xml.writeAttribute(u"xmlns:manifest"_s, QLatin1String(manifestNamespace));
    xml.writeAttribute(u"manifest:version"_s, u"1.3"_s);
    writeEntry(xml, u"/"_s, QString::fromLatin1(mediaType));
    for (const PackagePart& part : parts)
        writeEntry(xml, QString::fromLatin1(part.name), QString::fromLatin1(part.mediaType));
    xml.writeEndDocument();
    return bytes;
}

void writeNamespaces(QXmlStreamWriter& xml) {
    const QString odf = u"urn:oasis:names:tc:opendocument:xmlns:%1:1.0"_s;
    xml.writeAttribute(u"xmlns:office"_s, odf.arg(u"office"_s));
    xml.writeAttribute(u"xmlns:text"_s, odf.arg(u"text"_s));
    xml.writeAttribute(u"xmlns:style"_s, odf.arg(u"style"_s));
    xml.writeAttribute(u"xmlns:fo"_s, odf.arg(u"xsl-fo-compatible"_s));
    xml.writeAttribute(u"xmlns:svg"_s, odf.arg(u"svg-compatible"_s));
    xml.writeAttribute(u"xmlns:config"_s, odf.arg(u"config"_s));
    xml.writeAttribute(u"xmlns:db"_s, odf.arg(u"database"_s));
    xml.writeAttribute(u"xmlns:ooo"_s, u"http://openoffice.org/2004/office"_s);
    xml.writeAttribute(u"xmlns:xlink"_s, u"http://www.w3.org/1999/xlink"_s);
}

} // namespace

QByteArray packageXml(const QString& root, const std::function<void(QXmlStreamWriter&)>& fill) {
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    xml.writeStartElement(root);
    writeNamespaces(xml);
    xml.writeAttribute(u"office:version"_s, u"1.3"_s);
    fill(xml);
    xml.writeEndDocument();
    return bytes;
}

QByteArray officePackage(const QByteArray& mediaType, const std::vector<PackagePart>& parts) {
    const QByteArray listed = manifest(mediaType, parts);
    Archive archive;
    // First and uncompressed, where programs look to recognise the file's type.
    archive.add("mimetype", mediaType, false);
    for (const PackagePart& part : parts)
        if (!part.content.isEmpty()) archive.add(part.name, part.content, true);
    archive.add("META-INF/manifest.xml", listed, true);
    return archive.finish();
}
