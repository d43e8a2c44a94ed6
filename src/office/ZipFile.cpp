#include "ZipFile.h"

#include "RuntimeError.h"

#include <memory>
#include <zip.h>

namespace {

void require(bool succeeded) {
    if (!succeeded) throw runtimeError(RuntimeError::outOfMemory);
}

using Source = std::unique_ptr<zip_source_t, decltype(&zip_source_free)>;
using Archive = std::unique_ptr<zip_t, decltype(&zip_discard)>;

/// The content must exist until the archive is closed.
void add(zip_t* archive, const ZipPart& part) {
    constexpr zip_uint16_t firstDosDay = 0x21; // 1 January 1980
    const auto size = static_cast<zip_uint64_t>(part.content.size());
    Source source(zip_source_buffer(archive, part.content.constData(), size, 0), &zip_source_free);
    require(source != nullptr);
    const zip_int64_t index = zip_file_add(archive, part.name, source.get(), ZIP_FL_ENC_UTF_8);
    require(index >= 0);
    static_cast<void>(source.release()); // the archive owns it now
    const auto place = static_cast<zip_uint64_t>(index);
    const bool isStored = part.method == ZipPart::Stored;
    zip_set_file_compression(archive, place, isStored ? ZIP_CM_STORE : ZIP_CM_DEFLATE, 0);
    zip_file_set_dostime(archive, place, 0, firstDosDay, 0);
}

QByteArray contentOf(zip_source_t* source) {
    zip_stat_t size;
    require(zip_source_stat(source, &size) == 0 && zip_source_open(source) == 0);
    QByteArray bytes(static_cast<qsizetype>(size.size), Qt::Uninitialized);
    const zip_int64_t read = zip_source_read(source, bytes.data(), size.size);
    zip_source_close(source);
    require(read == static_cast<zip_int64_t>(bytes.size()));
    return bytes;
}

} // namespace

QByteArray zipFile(const std::vector<ZipPart>& parts) {
    const Source bytes(zip_source_buffer_create(nullptr, 0, 0, nullptr), &zip_source_free);
    require(bytes != nullptr);
    Archive archive(zip_open_from_source(bytes.get(), ZIP_TRUNCATE, nullptr), &zip_discard);
    require(archive != nullptr);
    zip_source_keep(bytes.get()); // the archive owns one reference, `bytes` the other
    for (const ZipPart& part : parts) add(archive.get(), part);
    require(zip_close(archive.get()) == 0);
    static_cast<void>(archive.release());
    return contentOf(bytes.get());
}
