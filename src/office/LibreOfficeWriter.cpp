#include "LibreOfficeWriter.h"

#include "LibreOfficeWriterLetter.h"
#include "RuntimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool holds(const QString& path, const QByteArray& content) {
    QFile file(path);
    return file.size() == content.size() && file.open(QIODevice::ReadOnly) && file.readAll() == content;
}

void write(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) throw runtimeError(RuntimeError::accessDenied);
    file.write(content);
    if (!file.commit()) throw runtimeError(RuntimeError::diskFull);
}

/// Writes the letter unless a file with just this content exists. Returns the path. Overwrites no file.
QString storedLetter(const QDir& folder, const QByteArray& letter) {
    QString path = folder.filePath(u"Serienbrief.odt"_s);
    for (int number = 2; QFileInfo::exists(path); ++number) {
        if (holds(path, letter)) return path;
        path = folder.filePath(u"Serienbrief %1.odt"_s.arg(number));
    }
    write(path, letter);
    return path;
}

/// Debian packs the libraries of LibreOffice in several packages. An installation without the base of the
/// database drivers (libfilelo.so) is divided differently and counts as complete.
bool lacks(const QString& program, const QStringList& libraries) {
    const QDir parts = QFileInfo(QFileInfo(program).canonicalFilePath()).dir();
    return parts.exists(u"libfilelo.so"_s) &&
           !std::ranges::all_of(libraries, [&](const QString& name) { return parts.exists(name); });
}

QString lackOfDatabasePart(const QString& letter) {
    return u"Ihrem LibreOffice fehlt der Datenbankteil (Base). Ohne ihn kann der Serienbrief zwar "_s
           u"bearbeitet, aber nicht mit den Daten zusammengeführt werden.\r\n"_s
           u"Bitte installieren Sie LibreOffice Base (unter Debian und Ubuntu das Paket libreoffice-base) "_s
           u"und öffnen Sie danach den Serienbrief noch einmal:\r\n"_s +
           QDir::toNativeSeparators(letter);
}

class Writer final : public WordProcessor {
public:
    explicit Writer(QString program)
        : m_program(std::move(program)) {}

    // Writer needs none of these: it is always visible, a letter with a data source is a form letter, and a
    // new document is open for editing.
    void setVisible(bool) override {}
    void setMainDocumentType(int) override {}
    void editMainDocument() override {}

    void addDocument() override { m_letter = {}; }
    // A linked file needs only the name; the other settings have no meaning for it.
    void openDataSource(const MailMergeSource& source) override { m_dataFile = source.name; }
    void typeText(const QString& text) override { m_letter.typeText(text); }
    void typeParagraph() override { m_letter.typeParagraph(); }
    void insertField(const QString& name) override { m_letter.insertField(name); }

    QString complete() override {
        m_file = storedLetter(QFileInfo(m_dataFile).dir(), m_letter.package(m_dataFile));
        const bool complete = !lacks(m_program, {u"libflatlo.so"_s, u"libdbalo.so"_s, u"libdbaxmllo.so"_s});
        return complete ? QString() : lackOfDatabasePart(m_file);
    }
    void release() override {
        if (!QProcess::startDetached(m_program, {m_file}))
            throw runtimeError(RuntimeError::programNotReached);
    }

private:
    QString m_program;
    QString m_dataFile;
    QString m_file;
    LibreOfficeWriterLetter m_letter;
};

} // namespace

std::unique_ptr<WordProcessor> LibreOfficeWriter::start() {
    const QString program = QStandardPaths::findExecutable(u"soffice"_s);
    // Without Writer it can't open a letter.
    if (program.isEmpty() || lacks(program, {u"libswlo.so"_s}))
        throw runtimeError(RuntimeError::programNotReached);
    return std::make_unique<Writer>(program);
}
