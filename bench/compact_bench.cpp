// Compacting a file, verified, and saving the rows of a damaged one.

#include "DBEngine.h"
#include "Measure.h"
#include "ProgramUnderTest.h"
#include "RawFile.h"

#include <QFile>

namespace {

constexpr int runs = 3;

QString connectText() { return u";pwd=qx-1987-nkr"_qs; }

void exportTo(const QString& path, const QString& target) {
    QFile::remove(target);
    RawFile file(path);
    file.execute(("ATTACH '" + target.toUtf8() + "' AS floor KEY 'qx-1987-nkr'").constData());
    file.execute("SELECT sqlcipher_export('floor')");
}

void compactTo(const QString& path, const QString& target) {
    QFile::remove(target);
    DBEngine::CompactDatabase(path, target, connectText());
}

void benchCompaction(const QString& folder) {
    const QString path = folder + u"/uw01.mdb"_qs;
    const Pair seconds = byTurns(
        runs, [&] { compactTo(path, folder + u"/own.mdb"_qs); },
        [&] { exportTo(path, folder + u"/floor.mdb"_qs); });
    printRow("CompactDatabase, verified", seconds, "sqlcipher_export", 1.5);
}

/// Time to save the rows of a file with one damaged page in the middle.
double salvage(const QString& folder) {
    const QString damaged = folder + u"/damaged.mdb"_qs;
    QFile::copy(folder + u"/uw01.mdb"_qs, damaged);
    QFile file(damaged);
    if (!file.open(QIODevice::ReadWrite) || !file.seek(file.size() / 2)) std::abort();
    file.write(QByteArray(64, 'x'));
    file.close();
    const double seconds = medianSeconds(runs, [&] { compactTo(damaged, folder + u"/saved.mdb"_qs); });
    QFile::remove(damaged);
    return seconds;
}

} // namespace

int main(int argc, char* argv[]) {
    NoBoxes boxes;
    BenchDesk desk(argc, argv, boxes);
    benchCompaction(desk.club());
    const double real = salvage(desk.club(realClub));
    printRow("salvage of a damaged file", {salvage(desk.club()), real}, "in the real club",
             1.2 * desk.size().times);
}
