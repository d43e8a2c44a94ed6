#include "Connection.h"
#include "DBEngine.h"
#include "ErrorOf.h"
#include "FileReplacement.h"
#include "FixedClock.h"
#include "FullDisk.h"
#include "KilledRuns.h"
#include "NewDatabase.h"
#include "RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// All rows inserted by the tests, read by a new connection.
QString contentOf(const QString& path) {
    cursors::Connection file(path, rawKey(), cursors::Connection::Access::ReadWrite);
    EXPECT_EQ(answer(file, "PRAGMA integrity_check"), u"ok");
    return answer(file, "SELECT group_concat(FangNr || ' ' || Notiz || ' ' || Gewicht) FROM Fang") + u'\n' +
           answer(file, "SELECT group_concat(KNr || ' ' || Nachname) FROM Kontakt");
}

/// In memory if possible: the tests would wait for a disk thousands of times.
QString testFolder() {
    const QString memory = u"/dev/shm"_s;
    return (QDir(memory).exists() ? memory : QDir::tempPath()) + u"/uferwart-XXXXXX"_s;
}

} // namespace

/// Rewrites a file through the work file, in processes that may be killed.
class RewriteTest : public ::testing::Test {
    QTemporaryDir m_folder = QTemporaryDir(testFolder());
    FixedClock m_clock;

protected:
    RewriteTest() {
        QDir(m_folder.path()).mkdir(u"temp"_s);
        createDatabase(path(), rawKey(), 2005);
        cursors::Connection file(path(), rawKey(), cursors::Connection::Access::ReadWrite);
        const QByteArray numbers =
            "WITH RECURSIVE n(i) AS (VALUES (1) UNION SELECT i + 1 FROM n WHERE i < 200) ";
        file.execute(numbers + "INSERT INTO Fang(FangJahr, FangMonat, FischNr, GNr, Notiz, Anzahl, Gewicht) "
                               "SELECT 2005, 3, 1, 1, 'am Ufer', 1, i * 10 FROM n");
        file.execute(numbers + "INSERT INTO Kontakt(KategoNr, Nachname) SELECT 3, 'Name ' || i FROM n");
        file.execute("DELETE FROM Kontakt WHERE KNr > 50");
    }

    QString path() const { return m_folder.filePath(u"uw01.mdb"_s); }
    QString work() const { return m_folder.filePath(u"temp/uwtmp.mdb"_s); }

    QString kept() const { return m_folder.filePath(u"Sicherung"_s); }

    void damage(qint64 page) const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek((page - 1) * 1024 + 500));
        file.write("damage");
    }

    int rewrite(const std::function<void()>& between) const {
        try {
            const FileHold alone = DBEngine::CompactDatabase(path(), work(), rawKey(), kept());
            between();
            replaceDatabase(work(), path());
        } catch (const RuntimeError& error) {
            return error.number;
        }
        return 0;
    }

    /// Rewrites in a process of its own, after `prepare`.
    End rewriteAfter(
        const std::function<void()>& prepare, const std::function<void()>& between = [] {}) const {
        return inOwnProcess([&] {
            // Leftovers of a killed process in there are removed with the test.
            const QString ownTemporary = m_folder.filePath(QString::number(getpid()));
            QDir().mkdir(ownTemporary);
            qputenv("TMPDIR", ownTemporary.toUtf8());
            prepare();
            return rewrite(between) == 0;
        });
    }

    /// Remembers the file now and its rows after a rewriting.
    void learn() {
        m_old = bytesOf(path());
        ASSERT_EQ(rewriteAfter([] {}), End::Done);
        m_rows = contentOf(path());
        ASSERT_LT(bytesOf(path()).size(), m_old.size());
        restore();
    }

    void restore() const {
        QDir(kept()).removeRecursively();
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(m_old);
    }

    /// Requires the old file unchanged or the new one complete, and the next attempt to succeed once a
    /// leftover work file is removed.
    void requireAWholeFile() {
        const bool isOld = bytesOf(path()) == m_old;
        ASSERT_TRUE(isOld || contentOf(path()) == m_rows);
        if (QFile::exists(work())) {
            ASSERT_EQ(rewrite([] {}), 3204);
            ASSERT_TRUE(QFile::remove(work()));
        }
        ASSERT_EQ(rewriteAfter([] {}), End::Done);
        ASSERT_EQ(contentOf(path()), m_rows);
        restore();
    }

    void fillDiskEverywhere() {
        for (int place = 1;; ++place) {
            const End end = rewriteAfter([=] { fillDiskAtWrite(place); });
            if (end == End::Done) break;
            ASSERT_EQ(end, End::Failed);
            ASSERT_FALSE(QFile::exists(work())) << "what is half-written is taken away, write " << place;
            requireAWholeFile();
            if (HasFatalFailure()) return;
        }
    }

    QByteArray m_old;
    QString m_rows;
};

TEST_F(RewriteTest, AKillBeforeTheExchangeLeavesTheOldFile) {
    learn();
    ASSERT_EQ(rewriteAfter([] {}, &killThisProcess), End::Killed);
    EXPECT_EQ(contentOf(work()), m_rows) << "the new file is whole before the old one goes";
    requireAWholeFile();
}

TEST_F(RewriteTest, AFullDiskLeavesTheOldFile) {
    learn();
    fillDiskEverywhere();
    damage(10);
    learn();
    fillDiskEverywhere();
}

TEST_F(RewriteTest, AnExchangeThatFailsLeavesTheOldFile) {
    m_old = bytesOf(path());
    EXPECT_NE(errorOf([&] { replaceDatabase(work(), path()); }), 0) << "there is no new file";
    EXPECT_EQ(bytesOf(path()), m_old);
}

TEST_F(RewriteTest, ACopyThatTheDiskHasLostIsNoFile) {
    learn();
    for (int place = 4; place < 60; place += 4) {
        rewriteAfter([=] { loseWrite(place); });
        ASSERT_TRUE(bytesOf(path()) == m_old || contentOf(path()) == m_rows) << place;
        QFile::remove(work());
        restore();
    }
}

TEST_F(RewriteTest, AReadErrorLeavesTheFileAsItIs) {
    Database open = DBEngine::Workspaces(0).OpenDatabase(path(), false, false, u";pwd="_s + rawKey());
    failReadsAt(20 * 1024);
    EXPECT_TRUE(open.isSound()) << "what can't be read is not damaged";
    open.Close();
    for (const bool isDamaged : {false, true}) {
        if (isDamaged) damage(10);
        m_old = bytesOf(path());
        EXPECT_EQ(rewrite([] {}), 3043);
        EXPECT_TRUE(bytesOf(path()) == m_old && !QFile::exists(work()));
    }
    failReadsAt(-1);
}

TEST_F(RewriteTest, NobodyWritesBetweenTheCopyAndTheExchange) {
    const auto write = [&] {
        return errorOf([&] {
                   cursors::Connection(path(), rawKey(), cursors::Connection::Access::ReadWrite)
                       .execute("UPDATE System SET FJahr = FJahr + 1");
               }) == 0;
    };
    for (const bool isDamaged : {false, true}) {
        if (isDamaged) damage(10);
        ASSERT_EQ(inOwnProcess(write), End::Done);
        EXPECT_EQ(rewrite([&] { EXPECT_EQ(inOwnProcess(write), End::Failed); }), 0);
    }
    EXPECT_EQ(inOwnProcess(write), End::Done);
}
