#include "ProgramFolder.h"

#include "DBEngine.h"
#include "DemoClub.h"
#include "NewDatabase.h"
#include "RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr const char16_t* password = u"qx-1987-nkr";

/// The folders and files made so far. The destructor removes them unless keep() was called.
class Beginnings {
public:
    Beginnings() = default;
    Beginnings(const Beginnings&) = delete;
    Beginnings& operator=(const Beginnings&) = delete;
    ~Beginnings() {
        for (const QString& file : m_files) QFile::remove(file);
        for (auto folder = m_folders.rbegin(); folder != m_folders.rend(); ++folder) QDir().rmdir(*folder);
    }

    /// Makes a folder and the folders above it if they are missing.
    void makeFolder(const QString& path) {
        if (QFileInfo::exists(path)) return;
        makeFolder(QFileInfo(path).path());
        if (!QDir().mkdir(path)) {
            throw runtimeError(RuntimeError::folderNotMade, path);
        }
        m_folders.append(path);
    }

    void made(const QString& file) { m_files.append(file); }

    void keep() {
        m_files.clear();
        m_folders.clear();
    }

private:
    QStringList m_files;
    QStringList m_folders;
};

void copyPicture(const QString& target, Beginnings& beginnings) {
    if (QFileInfo::exists(target)) return;
    QFile picture(QStringLiteral(":/programfolder/Cut.bmp"));
    if (!picture.copy(target)) {
        throw runtimeError(RuntimeError::fileNotMade, target);
    }
    beginnings.made(target);
    // A file copied from the resources is write-protected.
    QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
}

void fillDatabase(const QString& path, int year) {
    const QString connect = QStringLiteral(";pwd=") + QString::fromUtf16(password);
    Database database = DBEngine::Workspaces(0).OpenDatabase(path, false, false, connect);
    fillDemoClub(database, year);
    database.Close();
}

} // namespace

// The linker drops a static library's resources unless this macro names them. The macro does not work inside
// a namespace.
static void linkPictures() { Q_INIT_RESOURCE(programfolder); }

void makeProgramFolder(const QString& folder, int year, bool demo) {
    linkPictures();
    const QString place = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    const QString path = place + QStringLiteral("/uw01.mdb");
    if (QFileInfo::exists(path)) {
        throw runtimeError(RuntimeError::folderHasDatabase, place);
    }
    Beginnings beginnings;
    for (const char16_t* inner : {u"/temp", u"/SeqData", u"/Sicherung", u"/Graphics/bmp"}) {
        beginnings.makeFolder(place + QString::fromUtf16(inner));
    }
    copyPicture(place + QStringLiteral("/Graphics/bmp/Cut.bmp"), beginnings);
    createDatabase(path, QString::fromUtf16(password), year);
    beginnings.made(path);
    if (demo) fillDatabase(path, year);
    beginnings.keep();
}

QStringList completeProgramFolder(const QString& folder) {
    return completeDatabase(folder + QStringLiteral("/uw01.mdb"), QString::fromUtf16(password),
                            folder + QStringLiteral("/Sicherung"));
}
