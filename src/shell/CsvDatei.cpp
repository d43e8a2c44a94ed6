#include "CsvDatei.h"

#include "CodePage.h"
#include "RuntimeError.h"

#include <QFileInfo>

namespace {

constexpr int bufferSize = 64 * 1024;
constexpr int diskFull = 61;
constexpr int accessDenied = 70;
constexpr int pathNotFound = 76;

/// As the code page has them; most texts of a list are plain ASCII and need no table.
void appendEncoded(QByteArray& buffer, QStringView text) {
    for (const QChar sign : text) {
        constexpr char16_t lastOfAscii = 0x7f;
        if (sign.unicode() > lastOfAscii) {
            buffer += toWindows1252(text.toString());
            return;
        }
    }
    for (const QChar sign : text) buffer += static_cast<char>(sign.unicode());
}

} // namespace

CsvDatei::CsvDatei(const QString& path)
    : m_file(path) {
    if (!QFileInfo(QFileInfo(path).path()).isDir()) throw runtimeError(pathNotFound);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        throw runtimeError(accessDenied);
    m_buffer.reserve(bufferSize);
}

void CsvDatei::writeHead(const QString& head) {
    appendEncoded(m_buffer, head);
    m_buffer += ';';
}

void CsvDatei::writeField(const QString& text, int length, Fill fill) {
    QStringView field = QStringView(text).left(length);
    if (fill == Fill::Trimmed)
        while (field.endsWith(u' ')) field.chop(1);
    appendEncoded(m_buffer, field);
    if (fill == Fill::Padded) m_buffer.append(length - field.size(), ' ');
    m_buffer += ';';
}

void CsvDatei::endLine() {
    m_buffer += "\r\n";
    if (m_buffer.size() >= bufferSize) flush();
}

void CsvDatei::close() {
    flush();
    m_file.close();
    if (m_file.error() != QFileDevice::NoError) throw runtimeError(diskFull);
}

void CsvDatei::flush() {
    if (m_file.write(m_buffer) != m_buffer.size()) throw runtimeError(diskFull);
    m_buffer.clear();
}
