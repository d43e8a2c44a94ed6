#include "SafetyCopy.h"

#include "Connection.h"
#include "FileReplacement.h"
#include "RawContent.h"
#include "RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <algorithm>

namespace {

constexpr qsizetype chunk = 1 << 20;
constexpr qsizetype copiesKept = 10;
constexpr int diskFull = 3026;

constexpr QStringView timeFormat = u"yyyy-MM-dd HH.mm.ss";

/// "uw01 2026-03-14 18.05.12": sorts by time, and every file system takes it.
class CopyNames {
public:
    CopyNames(const QString& file, const QString& folder, const QDateTime& time)
        : m_folder(folder)
        , m_stem(QFileInfo(file).completeBaseName() + u' ')
        , m_ending(u'.' + QFileInfo(file).suffix())
        , m_time(m_stem + time.toString(timeFormat)) {}

    /// The copies that are there, by their names without the ending, oldest first.
    QStringList present() const {
        QStringList names;
        for (const QString& entry : m_folder.entryList({m_stem + u'*' + m_ending}, QDir::Files))
            if (const QString name = entry.chopped(m_ending.size()); isOurs(name)) names.append(name);
        const auto age = [this](const QString& name) { return std::pair(name <= newest(), name); };
        std::sort(names.begin(), names.end(),
                  [&](const QString& one, const QString& other) { return age(one) < age(other); });
        return names;
    }

    /// A name for the copy of now; two of one second are told apart.
    QString free() const {
        QString name = m_time;
        for (int number = 2; QFile::exists(path(name)); ++number)
            name = QStringLiteral("%1 (%2)").arg(m_time).arg(number);
        return name;
    }

    QString path(const QString& name) const { return m_folder.filePath(name + m_ending); }

private:
    bool isOurs(const QString& name) const {
        const QStringView time = QStringView(name).mid(m_stem.size(), timeFormat.size());
        return QDateTime::fromString(time.toString(), timeFormat.toString()).isValid();
    }

    /// The last name that the present second can have.
    QString newest() const { return m_time + u'~'; }

    QDir m_folder;
    QString m_stem;
    QString m_ending;
    QString m_time;
};

QString unfinishedPath(const QString& file, const QString& folder) {
    return QDir(folder).filePath(QFileInfo(file).completeBaseName() + QStringLiteral(".neu"));
}

/// Calls `take` for one piece after the other, as long as it returns true.
template<typename Take>
bool forEachChunk(const RawContent& content, Take&& take) {
    for (qint64 offset = 0; offset < content.size(); offset += chunk)
        if (!take(content.read(offset, std::min<qint64>(chunk, content.size() - offset)))) return false;
    return true;
}

bool equals(const RawContent& content, const QString& path) {
    QFile copy(path);
    if (copy.size() != content.size() || !copy.open(QIODevice::ReadOnly)) return false;
    return forEachChunk(content, [&](const QByteArray& bytes) { return copy.read(bytes.size()) == bytes; });
}

void writeOut(const RawContent& content, const QString& path) {
    QSaveFile copy(path);
    const bool whole = copy.open(QIODevice::WriteOnly) && forEachChunk(content, [&](const QByteArray& bytes) {
                           return copy.write(bytes) == bytes.size();
                       });
    if (!whole || !copy.commit()) throw runtimeError(diskFull);
}

/// Reads every page of a copy, each of which carries a check sum of its own.
void requireSound(const QString& path, const QString& password) {
    Connection copy(path, password, Connection::Access::ReadOnly);
    Statement check = copy.prepare("PRAGMA quick_check");
    if (!check.step() || check.text(0) != u"ok") throw runtimeError(3343, path);
}

void makeCopy(const RawContent& content, const QString& password, const CopyNames& names,
              const QString& unfinished) {
    writeOut(content, unfinished);
    requireSound(unfinished, password);
    replaceDatabase(unfinished, names.path(names.free()));
}

void removeOldest(const CopyNames& names) {
    const QStringList present = names.present();
    for (qsizetype surplus = 0; surplus < present.size() - copiesKept; ++surplus)
        QFile::remove(names.path(present[surplus]));
}

} // namespace

void keepSafetyCopy(const QString& file, const QString& password, const QString& folder,
                    const QDateTime& time) {
    if (!QDir(folder).exists() && !QDir().mkdir(folder)) throw runtimeError(75, folder);
    const CopyNames names(file, folder, time);
    Connection original(file, password, Connection::Access::ReadOnly);
    // Keeps others from writing until the copy is made.
    original.execute("BEGIN");
    original.prepare("SELECT COUNT(*) FROM sqlite_master").step();
    const RawContent content(original.handle());
    if (const QStringList present = names.present();
        !present.isEmpty() && equals(content, names.path(present.last())))
        return;
    makeCopy(content, password, names, unfinishedPath(file, folder));
    removeOldest(names);
}

bool isCopyUnfinished(const QString& file, const QString& folder) {
    return QFile::exists(unfinishedPath(file, folder));
}

void forgetUnfinishedCopy(const QString& file, const QString& folder) {
    QFile::remove(unfinishedPath(file, folder));
}
