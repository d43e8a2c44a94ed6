#include "ProgramFolder.h"
#include "Connection.h"
#include "ErrorOf.h"
#include "OpenFolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

int failureOf(const QString& folder) {
    return errorOf([&] { makeProgramFolder(folder, 2026, false); });
}

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(ProgramFolder, HoldsAllThatTheProgramExpectsWhateverItsPath) {
    QTemporaryDir place;
    const QString longName = QStringLiteral("/Lang ") + QString(120, u'x');
    for (const QString& name : {QStringLiteral("/Müllers Ordner mit ß, 'Strich' & %1"),
                                QStringLiteral("/a/b/c") + longName + longName}) {
        SCOPED_TRACE(name.toStdString());
        const QString folder = place.path() + name;
        makeProgramFolder(folder, 2024, false);
        EXPECT_TRUE(QDir(folder + QStringLiteral("/temp")).exists());
        EXPECT_TRUE(QDir(folder + QStringLiteral("/SeqData")).exists());
        EXPECT_TRUE(contents(folder + QStringLiteral("/Graphics/bmp/Cut.bmp")).startsWith("BM"));
        Database database = openFolder(folder);
        Recordset system = database.OpenRecordset(QStringLiteral("System"), dbOpenTable);
        EXPECT_EQ(system.Collect(QStringLiteral("FJahr")), Value(2024));
    }
}

TEST(ProgramFolder, NeverTouchesADatabaseThatIsAlreadyThere) {
    QTemporaryDir place;
    QFile data(place.filePath(QStringLiteral("uw01.mdb")));
    ASSERT_TRUE(data.open(QIODevice::WriteOnly));
    data.write("mine");
    data.close();
    EXPECT_EQ(failureOf(place.path()), 3204);
    EXPECT_EQ(contents(data.fileName()), "mine");
    EXPECT_FALSE(QDir(place.filePath(QStringLiteral("temp"))).exists());
}

TEST(ProgramFolder, LeavesNothingBehindWhenItFails) {
    QTemporaryDir place;
    QDir inside(place.path());
    // A file has the place of the last folder.
    ASSERT_TRUE(inside.mkpath(QStringLiteral("alt")));
    QFile obstacle(place.filePath(QStringLiteral("alt/Graphics")));
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));
    EXPECT_EQ(failureOf(place.filePath(QStringLiteral("alt"))), 75);
    EXPECT_EQ(QDir(place.filePath(QStringLiteral("alt"))).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{QStringLiteral("Graphics")});
    EXPECT_EQ(failureOf(obstacle.fileName() + QStringLiteral("/neu")), 75);
}

TEST(ProgramFolder, AddsWhatAnOlderDatabaseLacksAndKeepsACopy) {
    QTemporaryDir place;
    makeProgramFolder(place.path(), 2026, false);
    const QString path = place.filePath(QStringLiteral("uw01.mdb"));
    {
        cursors::Connection file(path, QStringLiteral("qx-1987-nkr"), cursors::Connection::Access::ReadWrite);
        file.execute("DROP TABLE \"Besatzung\"");
        file.execute("ALTER TABLE \"Fisch\" RENAME TO \"Alt\"");
        file.execute("CREATE TABLE \"Fisch\" (\"FNr\" INTEGER PRIMARY KEY AUTOINCREMENT, \"FName\" TEXT)");
        file.execute("INSERT INTO \"Fisch\" VALUES (7, 'Aal')");
        file.execute("DROP TABLE \"Alt\"");
        file.close();
    }
    EXPECT_EQ(errorOf([&] { openFolder(place.path()); }), 3343);
    const QStringList added = {QStringLiteral("Fisch.Notiz"), QStringLiteral("Besatzung")};
    EXPECT_EQ(completeProgramFolder(place.path()), added);
    Database database = openFolder(place.path());
    EXPECT_EQ(only(database, QStringLiteral("SELECT MAX(FNr) FROM Fisch")), Value(7));
    database.Close();
    EXPECT_EQ(completeProgramFolder(place.path()), QStringList());
    EXPECT_EQ(QDir(place.filePath(QStringLiteral("Sicherung"))).entryList(QDir::Files).size(), 2);
    EXPECT_EQ(errorOf([&] { completeProgramFolder(place.filePath(QStringLiteral("nirgends"))); }), 3024);
}
