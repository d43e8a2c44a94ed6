#include "Connection.h"
#include "DBEngine.h"
#include "FixedClock.h"
#include "Fuzz.h"
#include "NewDatabase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// A key of plain bytes: deriving one from a password would take most of the time.
QString key() { return u"x'"_s + QString(64, u'7') + u'\''; }

QByteArray fileBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the file can be written");
}

/// The folder for the damaged files, in memory if possible, and the bytes of the sound file.
struct Room {
    Room() {
        qputenv("TMPDIR", folder.path().toUtf8());
        createDatabase(path(), key(), 2005);
        cursors::Connection file(path(), key(), cursors::Connection::Access::ReadWrite);
        for (const char* rows : {"INSERT INTO Fisch VALUES (1, 'Hecht', NULL), (2, 'Äsche', 'selten')",
                                 "INSERT INTO Gewaesser VALUES (1, 'Waldsee', hex(zeroblob(1500)))",
                                 "INSERT INTO Fang SELECT NULL, 2005, 5, FNr, 1, 'Notiz', 3, 1.5 FROM Fisch",
                                 "INSERT INTO Kontakt (KategoNr, Nachname) VALUES (1, 'Müller')",
                                 "INSERT INTO Mitglied VALUES (1, 1, 0, 1, 36526.0, 0.0, 0)"})
            file.execute(rows);
        file.close();
        whole = fileBytes(path());
    }

    QString path() const { return folder.filePath(u"uw01.mdb"_s); }
    QString copy() const { return folder.filePath(u"uwtmp.mdb"_s); }

    void clear() const {
        for (const QString& name : QDir(folder.path()).entryList(QDir::Files))
            QFile::remove(folder.filePath(name));
    }

    QTemporaryDir folder{(QDir(u"/dev/shm"_s).exists() ? u"/dev/shm"_s : QDir::tempPath()) +
                         u"/fuzz-XXXXXX"_s};
    QByteArray whole;
    FixedClock clock;
};

/// Damages the file: "@OFFSET TEXT" overwrites, "<SIZE" cuts off, ">TEXT" appends, "%PAGE PAGE" copies a
/// page, "-TEXT" writes a journal, "~TEXT" a log.
void damage(const QString& path, const QByteArray& line) {
    QByteArray bytes = fileBytes(path);
    const QByteArray rest = line.mid(1);
    const QByteArrayList words = rest.split(' ');
    const qsizetype place = bytes.isEmpty() ? 0 : words[0].toUInt() % (bytes.size() + 1);
    switch (line.isEmpty() ? '\0' : line[0]) {
    case '@':
        return writeFile(path,
                         bytes.replace(place, rest.size() - words[0].size(), rest.mid(words[0].size())));
    case '<':
        return writeFile(path, bytes.first(place));
    case '>':
        return writeFile(path, bytes + rest);
    case '%':
        return writeFile(path, bytes.replace(place / 1024 * 1024, 1024,
                                             bytes.mid(words.value(1).toUInt() % 64 * 1024, 1024)));
    case '-':
        return writeFile(path + u"-journal"_s, rest);
    case '~':
        return writeFile(path + u"-wal"_s, rest);
    default:
        return;
    }
}

/// Opens the file and reads all rows. Returns the number of the error of opening or closing it, or 0.
int read(const QString& path, bool& sound, int& rows) {
    Database database;
    const int refused = errorOf(
        [&] { database = DBEngine::Workspaces(0).OpenDatabase(path, false, false, u";pwd="_s + key()); });
    if (refused != 0) return refused;
    sound = true;
    for (const TableSpec& table : schemaTables())
        sound = errorOf([&] {
                    Recordset all = database.OpenRecordset(table.name.toString(), dbOpenTable);
                    for (; !all.Eof(); all.MoveNext(), ++rows)
                        for (const Recordset::Field& field : all.Fields()) field.Value();
                }) == 0 &&
                sound;
    return errorOf([&] { database.Close(); });
}

bool isWhole(const QString& path) {
    cursors::Connection file(path, key(), cursors::Connection::Access::ReadOnly);
    engine::Statement check = file.prepare("PRAGMA integrity_check");
    return check.step() && check.text(0) == u"ok";
}

} // namespace

/// An input that begins with "!" is a whole file. The lines of any other input are for damage().
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size) {
    static const Room room;
    const QByteArray input(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
    room.clear();
    writeFile(room.path(), input.startsWith('!') ? input.mid(1) : room.whole);
    if (!input.startsWith('!'))
        for (const QByteArray& line : input.split('\n').first(std::min<qsizetype>(input.count('\n') + 1, 20)))
            damage(room.path(), line);

    bool sound = false;
    int rows = 0;
    constexpr std::array promised = {0, 3024, 3031, 3343, 3045, 3051};
    const int opened = read(room.path(), sound, rows);
    require(std::ranges::count(promised, opened) == 1, "a file that does not open has a promised error");
    sound = sound && isWhole(room.path());
    if (errorOf([&] { DBEngine::CompactDatabase(room.path(), room.copy(), key(), room.folder.path()); }) !=
        0) {
        require(!QFile::exists(room.copy()), "no half-written copy stays");
        return 0;
    }
    bool copySound = false;
    int copied = 0;
    require(read(room.copy(), copySound, copied) == 0 && isWhole(room.copy()), "the copy is whole");
    require(!sound || (copySound && copied == rows), "the copy of a sound file has all its rows");
    return 0;
}
