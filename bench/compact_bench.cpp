// Compacting a file with verification, and saving the rows of a damaged one.

#include "DBEngine.h"
#include "Measure.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr int runs = 3;

QString connectText() { return u";pwd=qx-1987-nkr"_s; }

void exportTo(const QString& path, const QString& target) {
    QFile::remove(target);
    RawFile file(path);
    file.execute(("ATTACH '" + target.toUtf8() + "' AS baseline KEY 'qx-1987-nkr'").constData());
    file.execute("SELECT sqlcipher_export('baseline')");
}

void compactTo(const QString& path, const QString& target, const QString& keptIn = {}) {
    QFile::remove(target);
    DBEngine::CompactDatabase(path, target, connectText(), keptIn);
}

void benchCompaction(const QString& folder) {
    const QString path = folder + u"/uw01.mdb"_s;
    const Pair seconds = byTurns(
        runs, [&] { compactTo(path, folder + u"/own.mdb"_s); },
        [&] { exportTo(path, folder + u"/baseline.mdb"_s); });
    printRow("CompactDatabase, verified", seconds, "sqlcipher_export", 1.5);
}

/// Whether all bookings, which are in the middle of the file, can be read.
bool canBeWalked(const QString& path) {
    RawFile file(path);
    sqlite3_stmt* rows = file.prepare("SELECT SUM(length(Notiz)) FROM Arbeit NOT INDEXED");
    const bool whole = sqlite3_step(rows) == SQLITE_ROW;
    sqlite3_finalize(rows);
    return whole;
}

/// Damages a page of rows in the middle of the file. No index has the lost rows.
void damage(const QString& path) {
    constexpr qint64 pageSize = 1024;
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) std::abort();
    const auto write = [&](qint64 place, const QByteArray& bytes) {
        if (!file.seek(place) || file.write(bytes) != bytes.size()) std::abort();
    };
    for (qint64 place = file.size() / pageSize / 2 * pageSize; place < file.size(); place += pageSize) {
        file.seek(place);
        const QByteArray healthy = file.read(64);
        write(place, QByteArray(64, 'x'));
        if (!canBeWalked(path)) return;
        write(place, healthy);
    }
    std::abort();
}

/// The median time of saving the rows of a file with one damaged page.
double salvage(const QString& folder, int times) {
    const QString damaged = folder + u"/damaged.mdb"_s;
    QFile::copy(folder + u"/uw01.mdb"_s, damaged);
    damage(damaged);
    const double seconds =
        medianSeconds(times, [&] { compactTo(damaged, folder + u"/saved.mdb"_s, folder); });
    QFile::remove(damaged);
    return seconds;
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    BenchDesk desk(argc, argv, boxes);
    benchCompaction(desk.club());
    const double real = salvage(desk.club(realClub), runs);
    printRow("salvage of a damaged file", {salvage(desk.club(), desk.size().times > 10 ? 1 : runs), real},
             "in the real club", 1.2 * desk.size().times);
}
