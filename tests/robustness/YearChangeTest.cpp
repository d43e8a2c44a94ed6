#include "Connection.h"
#include "DyingFileCalls.h"
#include "MsgBox.h"
#include "NewDatabase.h"
#include "Session.h"
#include "modStart.h"

#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int oldYear = 2004;
constexpr int newYear = 2005;

void die() { ::kill(getpid(), SIGKILL); }

/// Something that happens while a box is on the screen; they are counted from 1.
struct Incident {
    int box = 0;
    void (*happens)() = &die;
};

/// Says yes to everything.
class Boxes final : public MessageBoxes {
public:
    explicit Boxes(Incident incident)
        : m_incident(incident) {}
    MsgBoxResult show(const QString&, int style, const QString&) override {
        if (--m_incident.box == 0) m_incident.happens();
        return (style & vbYesNo) != 0 ? vbYes : vbOK;
    }

private:
    Incident m_incident;
};

/// The bytes of the key themselves: deriving them from a password would be most of the time of these tests.
QString key() { return u"x'"_qs + QString(64, u'7') + u'\''; }

} // namespace

/// A club of some members on disk, and processes that change its year.
class YearChangeTest : public ::testing::Test {
    QTemporaryDir m_folder;

protected:
    YearChangeTest() {
        createDatabase(path(), key(), oldYear);
        Connection file(path(), key(), Connection::Access::ReadWrite);
        const QByteArray numbers =
            "WITH RECURSIVE n(i) AS (VALUES (1) UNION SELECT i + 1 FROM n WHERE i < 300) ";
        for (const char* rows : {"INSERT INTO Kontakt(KategoNr, Nachname) SELECT 1, 'Name ' || i FROM n",
                                 "INSERT INTO Mitglied(KNr, Befreit, Bezahlt) SELECT i, i % 9 = 0, 1 FROM n",
                                 "INSERT INTO Arbeit(KNr, Jahr, Datum, ArbStd, Notiz) "
                                 "SELECT i, 2004, 38000 + i, i % 40, 'Ufer' FROM n"})
            file.execute(numbers + rows);
        file.execute("UPDATE System SET PflichtStd = 20");
    }

    QString path() const { return m_folder.filePath(u"uw01.mdb"_qs); }

    /// All that a year change can touch, as a new opening finds it.
    QString content() const {
        Connection file(path(), key(), Connection::Access::ReadWrite);
        const auto answer = [&](const QByteArray& select) {
            Statement statement = file.prepare(select);
            statement.step();
            return statement.text(0);
        };
        EXPECT_EQ(answer("PRAGMA integrity_check"), u"ok");
        return answer("SELECT FJahr FROM System") + u'\n' +
               answer("SELECT group_concat(KNr || ' ' || Bezahlt) FROM Mitglied") + u'\n' +
               answer(
                   "SELECT group_concat(ArbNr || ' ' || KNr || ' ' || Jahr || ' ' || Datum || ' ' || ArbStd "
                   "|| ' ' || Notiz) FROM Arbeit");
    }

    /// The start of the program in a process of its own. False if it was killed.
    bool start(
        const std::function<void()>& prepare = [] {}, Incident incident = {}, int year = newYear) {
        const pid_t child = fork();
        if (child == 0) {
            Boxes boxes(incident);
            setMessageBoxes(&boxes);
            beginSession(m_folder.path());
            session().AktJahr = static_cast<qint16>(year);
            session().AktWorkspace = DBEngine::Workspaces(0);
            session().AktDatenbank =
                session().AktWorkspace.OpenDatabase(path(), false, false, u";pwd="_qs + key());
            prepare();
            const bool goesOn = modStart::KontrolliereSystemJahr();
            if (session().AktDatenbank.isOpen()) session().AktDatenbank.Close();
            _exit(goesOn ? 0 : 1);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
        return !WIFSIGNALED(status);
    }

    /// Remembers the old year and the new one, and goes back to the old one.
    void learn(int year) {
        ASSERT_TRUE(QFile::copy(path(), path() + u".alt"_qs));
        m_old = content();
        ASSERT_TRUE(start([] {}, {}, year));
        m_new = content();
        ASSERT_NE(m_old, m_new);
        restore();
    }

    void restore() {
        QFile::remove(path());
        QFile::copy(path() + u".alt"_qs, path());
    }

    /// One of the two years stands whole in the file, and another start makes it the new one.
    void requireAWholeYear(int year) {
        const QString found = content();
        ASSERT_TRUE(found == m_old || found == m_new) << qUtf8Printable(found);
        ++(found == m_old ? m_oldFound : m_newFound);
        ASSERT_TRUE(start([] {}, {}, year));
        ASSERT_EQ(content(), m_new);
        restore();
    }

    /// Kills at every call that changes a file, in both ways. Returns how often.
    int killEverywhere(int year) {
        int kills = 0;
        for (const Death death : {Death::BeforeCall, Death::InCall}) {
            for (int place = 1;; ++place, ++kills) {
                if (start([=] { dieAtFileCall(place, death); }, {}, year)) break;
                requireAWholeYear(year);
                if (HasFatalFailure()) return kills;
            }
            restore();
        }
        return kills;
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
    ASSERT_TRUE(start());
    learn(oldYear - 1);
    EXPECT_GE(killEverywhere(oldYear - 1), 50);
    EXPECT_GT(m_oldFound, 0);
    EXPECT_GT(m_newFound, 0);
}

TEST_F(YearChangeTest, KilledWithABoxOnTheScreenLeavesTheOldYear) {
    learn(newYear);
    constexpr int boxes = 4;
    for (int box = 1; box <= boxes; ++box) {
        EXPECT_FALSE(start([] {}, {box, &die}));
        EXPECT_EQ(content(), m_old) << box;
    }
    EXPECT_TRUE(start([] {}, {boxes + 1, &die}));
}

TEST_F(YearChangeTest, AFileThatMayNotGrowHoldsTheOldYearOrTheNewOne) {
    learn(newYear);
    const auto largest = static_cast<rlim_t>(QFile(path()).size());
    for (rlim_t limit = 512; limit < 2 * largest; limit += 1024) {
        start([limit] {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit fileSize{limit, limit};
            setrlimit(RLIMIT_FSIZE, &fileSize);
        });
        requireAWholeYear(newYear);
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(m_oldFound, 0);
    EXPECT_GT(m_newFound, 0);
}
