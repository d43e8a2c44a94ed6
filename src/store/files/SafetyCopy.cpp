#include "SafetyCopy.h"

#include "Connection.h"
#include "FileReplacement.h"
#include "RawContent.h"

#include <QDir>
#include <QFile>
#include <algorithm>

namespace {

constexpr qsizetype copiesKept = 10;

constexpr QStringView timeFormat = u"yyyy-MM-dd HH.mm.ss";

/// Names such as "uw01 2026-03-14 18.05.12", which sort by time and suit every file system.
class CopyNames {
public:
    CopyNames(const QString& file, const QString& folder, const QDateTime& time)
        : m_folder(folder)
        , m_stem(QFileInfo(file).completeBaseName() + u' ')
        , m_ending(u'.' + QFileInfo(file).suffix())
        , m_time(time.toString(timeFormat)) {}

    /// The names of existing copies without the ending, oldest first.
    QStringList present() const {
        QStringList names;
        for (const QString& entry : entries(m_stem + u'*' + m_ending))
            if (const QString name = entry.chopped(m_ending.size()); isOurs(name)) names.append(name);
        const auto age = [this](const QString& name) { return std::pair(name <= newest(), name); };
        std::sort(names.begin(), names.end(),
                  [&](const QString& one, const QString& other) { return age(one) < age(other); });
        return names;
    }

    /// A new name: `label`, the time, and a number if another copy has that name.
    QString free(const QString& label = {}) const {
        int number = 1;
        const auto name = [&] { return m_stem + label + m_time + numbering(number); };
        while (QFile::exists(path(name()))) ++number;
        return name();
    }

    QString path(const QString& name) const { return m_folder.filePath(name + m_ending); }

    /// Removes temporary files of QSaveFile that a killed process has left.
    void sweep(const QString& unfinished) const {
        for (const QString& entry : entries(QFileInfo(unfinished).fileName() + QStringLiteral(".??????")))
            QFile::remove(m_folder.filePath(entry));
    }

private:
    static QString numbering(int number) {
        return number < 2 ? QString() : QStringLiteral(" (%1)").arg(number);
    }

    /// Only exact names of free(): users add a word to the names of copies that they keep.
    bool isOurs(const QString& name) const {
        const QString time = name.mid(m_stem.size(), timeFormat.size());
        const QString rest = name.mid(m_stem.size() + timeFormat.size());
        const bool isNumber = rest == numbering(rest.mid(2, rest.size() - 3).toInt());
        return isNumber && QDateTime::fromString(time, timeFormat.toString()).isValid();
    }

    QStringList entries(const QString& pattern) const {
        return m_folder.entryList({pattern}, QDir::Files | QDir::CaseSensitive);
    }

    /// Sorts behind all names of the present second.
    QString newest() const { return m_stem + m_time + u'~'; }

    QDir m_folder;
    QString m_stem;
    QString m_ending;
    QString m_time;
};

QString unfinishedPath(const QString& file, const QString& folder) {
    return QDir(folder).filePath(QFileInfo(file).completeBaseName() + QStringLiteral(".neu"));
}

/// Makes the folder if missing and removes leftovers of killed processes. Returns the path for the unfinished
/// copy.
QString prepareFolder(const QString& file, const QString& folder, const CopyNames& names) {
    if (!QDir(folder).exists() && !QDir().mkdir(folder)) throw runtimeError(RuntimeError::pathFailed);
    QString unfinished = unfinishedPath(file, folder);
    names.sweep(unfinished);
    return unfinished;
}

bool equals(const engine::RawContent& content, const QString& path) {
    QFile copy(path);
    if (copy.size() != content.size() || !copy.open(QIODevice::ReadOnly)) return false;
    return content.forEachChunk([&](const QByteArray& bytes) { return copy.read(bytes.size()) == bytes; });
}

/// Reads every page of a copy. Each page has a checksum of its own.
void requireSound(const QString& path, const QString& password) {
    cursors::Connection copy(path, password, cursors::Connection::Access::ReadOnly);
    if (!copy.isSound()) throw runtimeError(RuntimeError::damagedFile, path);
}

void removeOldest(const CopyNames& names) {
    const QStringList present = names.present();
    for (qsizetype surplus = 0; surplus < present.size() - copiesKept; ++surplus)
        QFile::remove(names.path(present[surplus]));
}

} // namespace

void keepSafetyCopy(const QString& file, const QString& password, const QString& folder,
                    const QDateTime& time) {
    const CopyNames names(file, folder, time);
    const QString unfinished = prepareFolder(file, folder, names);
    cursors::Connection original(file, password, cursors::Connection::Access::ReadOnly);
    // A read transaction keeps other processes from writing until the copy is made.
    original.execute("BEGIN");
    original.number("SELECT COUNT(*) FROM sqlite_master");
    const engine::RawContent content(original.handle());
    if (const QStringList present = names.present();
        !present.isEmpty() && equals(content, names.path(present.last())))
        return;
    content.copyTo(unfinished, QFile::permissions(file));
    requireSound(unfinished, password);
    replaceDatabase(unfinished, names.path(names.free()));
    removeOldest(names);
}

void keepFileBefore(const QString& before, const engine::RawContent& content, const QString& file,
                    const QString& folder, const QDateTime& time) {
    const CopyNames names(file, folder, time);
    const QString unfinished = prepareFolder(file, folder, names);
    content.copyTo(unfinished, QFile::permissions(file));
    replaceDatabase(unfinished, names.path(names.free(QStringLiteral("vor ") + before + u' ')));
}

bool isCopyUnfinished(const QString& file, const QString& folder) {
    return QFile::exists(unfinishedPath(file, folder));
}

void forgetUnfinishedCopy(const QString& file, const QString& folder) {
    QFile::remove(unfinishedPath(file, folder));
}
