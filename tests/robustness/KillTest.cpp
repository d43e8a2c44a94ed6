#include "Connection.h"
#include "ProgramFolder.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Queries that give 0 between any two actions. They may give 1 while an action is half done.
constexpr const char* broken[] = {
    "SELECT COUNT(*) <> 1 FROM System",
    "SELECT COUNT(*) FROM Mitglied WHERE KNr NOT IN (SELECT KNr FROM Kontakt)",
    "SELECT COUNT(*) FROM Benutzer WHERE GNr NOT IN (SELECT GNr FROM Gruppen)",
    "SELECT COUNT(*) FROM Kontakt WHERE GebDatum IS NULL",
};

void expectWhole(const QString& path) {
    cursors::Connection file(path, u"qx-1987-nkr"_s, cursors::Connection::Access::ReadWrite);
    engine::Statement check = file.prepare("PRAGMA integrity_check");
    EXPECT_TRUE(check.step() && check.text(0) == u"ok");
    for (const char* query : broken) {
        engine::Statement found = file.prepare(query);
        EXPECT_TRUE(found.step() && found.integer(0) == 0) << query;
    }
}

// Random users run one after the other in one program folder. UW_KILLS is their number.
TEST(KillTest, LeavesWholeActionsOnly) {
    QTemporaryDir place;
    const QString folder = place.filePath(u"programm"_s);
    makeProgramFolder(folder, 2026, true);
    const int kills = qEnvironmentVariableIsSet("UW_KILLS") ? qEnvironmentVariableIntValue("UW_KILLS") : 6;
    QRandomGenerator random(2026);
    for (int kill = 1; kill <= kills; ++kill) {
        QProcess walk;
        walk.start(QStringLiteral(UW_WALK), {u"--folder"_s, folder, u"--seed"_s, QString::number(kill)});
        ASSERT_TRUE(walk.waitForStarted());
        constexpr int longest = 1500;
        QThread::msleep(300UL + random.bounded(longest));
        walk.kill();
        walk.waitForFinished();
        // A killed compaction leaves its work file, which would stop the next one.
        QFile::remove(folder + u"/temp/uwtmp.mdb"_s);
        expectWhole(folder + u"/uw01.mdb"_s);
        if (HasFailure()) FAIL() << "kill " << kill;
    }
}

} // namespace
