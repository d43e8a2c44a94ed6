#include "CsvDatei.h"

#include "CodePage.h"
#include "Conversions.h"
#include "RuntimeError.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <charconv>

using namespace Qt::StringLiterals;

namespace {

constexpr int bufferSize = 64 * 1024;

/// Appends the text in Windows-1252, without spaces at its end. The code page equals the first 256 characters
/// of Unicode but for a gap, so that German texts need no table.
void appendTrimmed(std::string& buffer, QStringView text) {
    constexpr char16_t gapBegin = 0x80, gapEnd = 0xa0, beyond = 0x100;
    while (text.endsWith(u' ')) text.chop(1);
    const std::size_t before = buffer.size();
    for (const QChar sign : text) {
        const char16_t code = sign.unicode();
        if (code >= beyond || (code >= gapBegin && code < gapEnd)) {
            buffer.resize(before);
            buffer += toWindows1252(text.toString()).toStdString();
            return;
        }
        buffer += static_cast<char>(code);
    }
}

/// Assumes that the office program is running if the platform has no /proc.
bool isOfficeRunning() {
    const QDir processes(u"/proc"_s);
    if (!processes.exists(u"self"_s)) return true;
    const QStringList numbers = processes.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    return std::any_of(numbers.begin(), numbers.end(), [&](const QString& number) {
        QFile name(processes.filePath(number + u"/comm"_s));
        return name.open(QIODevice::ReadOnly) && name.readAll().startsWith("soffice");
    });
}

/// LibreOffice keeps a lock file beside an open file. If we wrote then, its next save would overwrite our
/// content. A lock left by a crash must not block the file for ever.
bool isHeldOpen(const QString& path) {
    const QFileInfo file(path);
    return QFileInfo::exists(file.path() + u"/.~lock."_s + file.fileName() + u'#') && isOfficeRunning();
}

} // namespace

QString CsvDatei::path(const QString& programFolder, const QString& name) {
    const QDir folder(programFolder + u"/SeqData"_s);
    // Sorted: if two files differ only in case, every spelling must give the same one.
    for (const QString& entry : folder.entryList(QDir::Files | QDir::Hidden, QDir::Name))
        if (entry.compare(name, Qt::CaseInsensitive) == 0) return folder.filePath(entry);
    return folder.filePath(name);
}

CsvDatei::CsvDatei(const QString& path)
    : m_file(path) {
    if (!QFileInfo(QFileInfo(path).path()).isDir()) throw runtimeError(RuntimeError::pathNotFound);
    if (isHeldOpen(path)) throw runtimeError(RuntimeError::accessDenied);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        throw runtimeError(RuntimeError::accessDenied);
    m_buffer.reserve(bufferSize);
}

CsvDatei::~CsvDatei() {
    // Open only after an error, which has been reported already.
    if (m_file.isOpen()) m_file.write(m_buffer.data(), qsizetype(m_buffer.size()));
}

void CsvDatei::writeText(QStringView text, int length) {
    appendTrimmed(m_buffer, text.left(length));
    m_buffer += ';';
}

void CsvDatei::writeField(const Value& value, int length, Fill fill) {
    const std::size_t begin = m_buffer.size();
    if (value.kind() == Value::Kind::Long) {
        // Half of a list's cells are whole numbers: write them without a QString.
        std::array<char, 12> digits;
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value.number()).ptr;
        m_buffer.append(digits.data(), std::size_t(std::min<qsizetype>(end - digits.data(), length)));
    } else if (!value.isNull()) {
        appendTrimmed(m_buffer, QStringView(CStr(value)).left(length));
    }
    if (fill == Fill::Padded) m_buffer.resize(begin + std::size_t(length), ' ');
    m_buffer += ';';
}

void CsvDatei::endLine() {
    m_buffer += "\r\n";
    if (m_buffer.size() >= bufferSize) flush();
}

void CsvDatei::close() {
    flush();
    m_file.close();
    if (m_file.error() != QFileDevice::NoError) throw runtimeError(RuntimeError::diskFull);
}

void CsvDatei::flush() {
    const qsizetype size = qsizetype(m_buffer.size());
    const bool whole = m_file.write(m_buffer.data(), size) == size;
    m_buffer.clear(); // keeps its room
    if (!whole) throw runtimeError(RuntimeError::diskFull);
}
