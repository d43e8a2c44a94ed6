// Compacting a file with a million catches, verified, and saving the rows of a damaged one.

#include "DBEngine.h"
#include "Measure.h"
#include "NewDatabase.h"
#include "RawFile.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

constexpr int runs = 3;

QString connectText() { return u";pwd=qx-1987-nkr"_qs; }

void makeFile(const QString& path, int catches) {
    createDatabase(path, u"qx-1987-nkr"_qs, 2026);
    RawFile file(path);
    const QByteArray fill = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                            QByteArray::number(catches) +
                            ") INSERT INTO Fang (FangJahr, FangMonat, FischNr, GNr, Notiz, Anzahl, Gewicht) "
                            "SELECT 2000 + i % 20, 1 + i % 12, 1 + i % 30, 1, '', i % 7, i % 5000 FROM n";
    file.execute(fill.constData());
}

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

/// By turns, so that both meet the machine in the same moods.
void benchCompaction(const QString& folder) {
    const QString path = folder + u"/million.mdb"_qs;
    makeFile(path, 1'000'000);
    std::vector<double> own, theirs;
    for (int run = 0; run < runs; ++run) {
        theirs.push_back(medianSeconds(1, [&] { exportTo(path, folder + u"/floor.mdb"_qs); }));
        own.push_back(medianSeconds(1, [&] { compactTo(path, folder + u"/own.mdb"_qs); }));
    }
    for (auto* seconds : {&own, &theirs})
        std::nth_element(seconds->begin(), seconds->begin() + runs / 2, seconds->end());
    printRow("CompactDatabase, 1,000,000 catches", own[runs / 2], "sqlcipher_export", theirs[runs / 2], 1.5);
}

/// Time to save the rows of a file with one damaged page in the middle.
double salvage(const QString& folder, int catches) {
    const QString path = folder + u"/damaged%1.mdb"_qs.arg(catches);
    makeFile(path, catches);
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !file.seek(file.size() / 2)) std::abort();
    file.write(QByteArray(64, 'x'));
    file.close();
    return medianSeconds(runs, [&] { compactTo(path, folder + u"/saved.mdb"_qs); });
}

} // namespace

int main() {
    const QTemporaryDir folder;
    benchCompaction(folder.path());
    const double small = salvage(folder.path(), 10'000);
    printRow("salvage of 100,000 catches", salvage(folder.path(), 100'000), "of 10,000", small, 12.0);
}
