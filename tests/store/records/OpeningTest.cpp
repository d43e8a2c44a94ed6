#include "StoreFixture.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

class OpeningTest : public StoreTest {
protected:
    OpeningTest() { database.Close(); }

    int errorOfOpening(const QString& file, const QString& password = connect(),
                       bool readOnly = false) const {
        return errorOf([&] { DBEngine::Workspaces(0).OpenDatabase(file, false, readOnly, password); });
    }

    /// Writes these bytes to another file. Returns its path.
    QString fileWith(const QByteArray& bytes) const {
        QFile made(file(u"anders.mdb"_s));
        if (!made.open(QIODevice::WriteOnly) || made.write(bytes) != bytes.size()) return {};
        return made.fileName();
    }

    /// A copy of the file and its journal as left by a process that was killed while writing.
    QString interruptedCopy() const {
        const auto writing = connectTo(path());
        writing->execute("PRAGMA cache_size = 5");
        writing->execute("BEGIN");
        writing->execute("UPDATE Kontakt SET Notiz = hex(randomblob(20000))");
        const QString copy = file(u"anders.mdb"_s);
        QFile::copy(path(), copy);
        QFile::copy(path() + u"-journal"_s, copy + u"-journal"_s);
        return copy;
    }

    static void overwrite(const QString& path, qint64 place, const QByteArray& bytes) {
        QFile torn(path);
        ASSERT_TRUE(torn.open(QIODevice::ReadWrite) && torn.seek(place) && torn.write(bytes) == bytes.size());
    }

    static QByteArray contentOf(const QString& path) {
        QFile read(path);
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
    }
};

TEST_F(OpeningTest, TellsAMissingFileAPasswordAndAFolderApart) {
    EXPECT_EQ(errorOfOpening(file(u"fehlt.mdb"_s)), 3024);
    EXPECT_EQ(errorOfOpening(path(), u""_s), 3031);
    EXPECT_EQ(errorOfOpening(path(), u"Provider=x;PWD=geheim"_s), 0);
    EXPECT_EQ(errorOfOpening(QFileInfo(path()).path()), 3051);
    EXPECT_EQ(errorOf([] { DBEngine::Workspaces(1); }), 9);
}

TEST_F(OpeningTest, TakesAFileThatWasCutShortForDamaged) {
    const QByteArray whole = contentOf(path());
    for (const qsizetype size : {qsizetype(1024), qsizetype(1025), whole.size() - 1024, whole.size() - 1}) {
        const QString cut = fileWith(whole.first(size));
        EXPECT_EQ(errorOfOpening(cut), 3343) << size;
        EXPECT_EQ(contentOf(cut).size(), size);
    }
}

TEST_F(OpeningTest, LeavesAnInterruptedFileAndItsJournalAloneWhenItFails) {
    const QString copy = interruptedCopy();
    const QString journal = copy + u"-journal"_s;
    ASSERT_GT(contentOf(copy).size(), contentOf(path()).size());
    for (const bool isTorn : {false, true}) {
        if (isTorn) overwrite(copy, 512, QByteArray(512, 'x'));
        const QByteArray file = contentOf(copy);
        const QByteArray rest = contentOf(journal);
        EXPECT_EQ(errorOfOpening(copy, u";pwd=falsch"_s), 3031);
        EXPECT_EQ(contentOf(copy), file);
        EXPECT_EQ(contentOf(journal), rest);
    }
    EXPECT_EQ(errorOfOpening(copy), 0) << "though its first page was torn apart";
    EXPECT_EQ(contentOf(copy), contentOf(path()));
    EXPECT_FALSE(QFile::exists(journal));
}

TEST_F(OpeningTest, TakesAFileBackFromTheModeOfAnotherTool) {
    const auto tool = connectTo(path());
    tool->execute("PRAGMA journal_mode = WAL");
    tool->execute("UPDATE Fisch SET FName = 'Aal' WHERE FNr = 1");
    EXPECT_EQ(errorOfOpening(path()), 3045) << "while the tool has it open";
    const QString log = u"-wal"_s;
    QFile::copy(path(), file(u"anders.mdb"_s));
    QFile::copy(path() + log, file(u"anders.mdb-wal"_s));
    const QByteArray rest = contentOf(file(u"anders.mdb-wal"_s));
    EXPECT_FALSE(rest.isEmpty());
    EXPECT_EQ(errorOfOpening(file(u"anders.mdb"_s), u";pwd=falsch"_s), 3031);
    EXPECT_EQ(contentOf(file(u"anders.mdb-wal"_s)), rest);
    tool->close();

    for (const QString& name : {u"uw01.mdb"_s, u"anders.mdb"_s}) {
        const auto own = connectTo(file(name));
        EXPECT_FALSE(QFile::exists(file(name) + log));
        EXPECT_EQ(rowsOf(*own, u"SELECT FName FROM Fisch WHERE FNr = 1"_s), u"Aal");
        own->execute("BEGIN IMMEDIATE");
        own->execute("DELETE FROM Fang");
        EXPECT_TRUE(QFile::exists(file(name) + u"-journal"_s));
    }
}

TEST_F(OpeningTest, SaysThatAFolderIsNotWritableWhenItsFileIsWrittenTo) {
    Database open = DBEngine::Workspaces(0).OpenDatabase(path(), false, false, connect());
    Recordset fish = open.OpenRecordset(u"Fisch"_s, dbOpenTable);
    // A folder in the journal's place: the tests may run as root, who may write to any folder.
    ASSERT_TRUE(QDir().mkdir(path() + u"-journal"_s));
    EXPECT_EQ(errorOf([&] { fish.Delete(); }), 3027);
}

TEST_F(OpeningTest, MakesFilesThatTheStandardProgramReads) {
    const QString program = QStandardPaths::findExecutable(u"sqlcipher"_s);
    if (program.isEmpty()) GTEST_SKIP() << "needs the package sqlcipher";
    QProcess standard;
    standard.start(program, {path()});
    standard.write("PRAGMA key = 'geheim';\nPRAGMA cipher_compatibility = 3;\n"
                   "UPDATE Fisch SET FName = upper(FName) WHERE FNr < 3;\n"
                   "SELECT FNr, FName, typeof(FNr), typeof(FName) FROM Fisch ORDER BY FName;\n"
                   "SELECT typeof(GebDatum), typeof(Bankeinzug) FROM Kontakt WHERE KNr = 1;\n"
                   "PRAGMA integrity_check;\n");
    standard.closeWriteChannel();
    ASSERT_TRUE(standard.waitForFinished());
    const QString output = QString::fromUtf8(standard.readAllStandardOutput());
    EXPECT_TRUE(output.contains(
        u"1|HECHT|integer|text\n2|ZANDER|integer|text\n3|Äsche|integer|text\nreal|integer\nok"))
        << output.toStdString();
}
