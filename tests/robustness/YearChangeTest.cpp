#include "Connection.h"
#include "FixedClock.h"
#include "FullDisk.h"
#include "KilledRuns.h"
#include "MsgBox.h"
#include "NewDatabase.h"
#include "Session.h"
#include "modStart.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

constexpr int oldYear = 2004;
constexpr int newYear = 2005;

/// Answers every question with Yes.
class Boxes final : public MessageBoxes {
public:
    MsgBoxResult show(const QString&, int style, const QString&) override {
        return (style & vbYesNo) != 0 ? vbYes : vbOK;
    }
};

} // namespace

/// A small club on disk, and processes that change its year.
class YearChangeTest : public ::testing::Test {
    QTemporaryDir m_folder;
    FixedClock m_clock;

protected:
    YearChangeTest() {
        createDatabase(path(), rawKey(), oldYear);
        cursors::Connection file(path(), rawKey(), cursors::Connection::Access::ReadWrite);
        const QByteArray numbers =
            "WITH RECURSIVE n(i) AS (VALUES (1) UNION SELECT i + 1 FROM n WHERE i < 300) ";
        for (const char* rows : {"INSERT INTO Kontakt(KategoNr, Nachname) SELECT 1, 'Name ' || i FROM n",
                                 "INSERT INTO Mitglied(KNr, Befreit, Bezahlt) SELECT i, i % 9 = 0, 1 FROM n",
                                 "INSERT INTO Arbeit(KNr, Jahr, Datum, ArbStd, Notiz) "
                                 "SELECT i, 2004, 38000 + i, i % 40, 'Ufer' FROM n"})
            file.execute(numbers + rows);
        file.execute("UPDATE System SET PflichtStd = 20");
        // A file in the folder's place prevents safety copies: these would need the program's own password
        // and time to derive its key.
        QFile inTheWay(m_folder.filePath(u"Sicherung"_qs));
        EXPECT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    }

    /// Not the program's own file name: safety copies with their slow password would add calls that are not
    /// tested here.
    QString path() const { return m_folder.filePath(u"jahr.mdb"_qs); }

    /// All that a change of the year can modify, read by a new connection.
    QString content() const {
        cursors::Connection file(path(), rawKey(), cursors::Connection::Access::ReadWrite);
        EXPECT_EQ(answer(file, "PRAGMA integrity_check"), u"ok");
        return answer(file, "SELECT FJahr FROM System") + u'\n' +
               answer(file, "SELECT group_concat(KNr || ' ' || Bezahlt) FROM Mitglied") + u'\n' +
               answer(
                   file,
                   "SELECT group_concat(ArbNr || ' ' || KNr || ' ' || Jahr || ' ' || Datum || ' ' || ArbStd "
                   "|| ' ' || Notiz) FROM Arbeit");
    }

    /// Starts the program in a process of its own.
    End start(
        int year = newYear, const Preparation& prepare = [] {}) const {
        return inOwnProcess([&] {
            Boxes boxes;
            setMessageBoxes(&boxes);
            beginSession(m_folder.path());
            session().AktJahr = static_cast<qint16>(year);
            session().AktWorkspace = DBEngine::Workspaces(0);
            session().AktDatenbank =
                session().AktWorkspace.OpenDatabase(path(), false, false, u";pwd="_qs + rawKey());
            prepare();
            const bool goesOn = modStart::KontrolliereSystemJahr();
            if (session().AktDatenbank.isOpen()) session().AktDatenbank.Close();
            return goesOn;
        });
    }

    /// Remembers the content in the old and the new year, then returns to the old one.
    void learn(int year) {
        ASSERT_TRUE(QFile::copy(path(), path() + u".alt"_qs));
        m_old = content();
        ASSERT_EQ(start(year), End::Done);
        m_new = content();
        ASSERT_NE(m_old, m_new);
        restore();
    }

    void restore() {
        QFile::remove(path());
        QFile::copy(path() + u".alt"_qs, path());
    }

    /// Requires the complete content of one of the two years, and that another start makes the new one.
    void requireAWholeYear(int year) {
        const QString found = content();
        ASSERT_TRUE(found == m_old || found == m_new) << qUtf8Printable(found);
        ++(found == m_old ? m_oldFound : m_newFound);
        ASSERT_EQ(start(year), End::Done);
        ASSERT_EQ(content(), m_new);
        restore();
    }

    int killEverywhere(int year) {
        const auto run = [&](const Preparation& prepare) {
            const End end = start(year, prepare);
            if (end == End::Done) restore();
            return end;
        };
        return killAtEachFileCall(run, [&] { requireAWholeYear(year); });
    }

    QString m_old;
    QString m_new;
    int m_oldFound = 0;
    int m_newFound = 0;
};

TEST_F(YearChangeTest, KilledAnywhereLeavesTheOldYearOrTheNewOne) {
    learn(newYear);
    EXPECT_GE(killEverywhere(newYear), 200);
    EXPECT_GT(m_oldFound, 0);
    EXPECT_GT(m_newFound, 0);
}

TEST_F(YearChangeTest, KilledOnTheWayBackLeavesOneYearOrTheOther) {
    ASSERT_EQ(start(), End::Done);
    learn(oldYear - 1);
    EXPECT_GE(killEverywhere(oldYear - 1), 50);
    EXPECT_GT(m_oldFound, 0);
    EXPECT_GT(m_newFound, 0);
}

TEST_F(YearChangeTest, AFullDiskHoldsTheOldYearOrTheNewOne) {
    learn(newYear);
    for (int place = 1; m_newFound == 0; ++place) {
        ASSERT_EQ(start(newYear, [=] { fillDiskAtWrite(place); }), End::Done);
        requireAWholeYear(newYear);
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(m_oldFound, 0);
}
