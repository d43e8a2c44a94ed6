#include "Connection.h"
#include "ProgramFolder.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

constexpr int rounds = 3;

QString password() { return u"qx-1987-nkr"_qs; }

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QStringList readActions() {
    const QString text = QString::fromUtf8(bytesOf(QStringLiteral(UW_ACTIONS)));
    const QStringList paragraphs = text.split(u"\n\n"_qs).mid(1);
    QStringList actions;
    for (int round = 1; round <= rounds; ++round)
        for (const QString& paragraph : paragraphs)
            actions += paragraph.trimmed().replace(u"%1"_qs, QString::number(round)) + u'\n';
    return actions;
}

/// All rows of all tables, and the counters. Leaves out the printing tables, whose content does not matter.
QByteArray digestOf(const QString& path) {
    cursors::Connection file(path, password(), cursors::Connection::Access::ReadWrite);
    engine::Statement check = file.prepare("PRAGMA integrity_check");
    EXPECT_TRUE(check.step() && check.text(0) == u"ok") << path.toStdString();
    QByteArrayList tables{"sqlite_sequence"};
    for (const TableSpec& table : schemaTables())
        if (!table.name.startsWith(u"Druck_")) tables += quotedName(table.name);
    QCryptographicHash digest(QCryptographicHash::Sha1);
    for (const QByteArray& table : tables) {
        engine::Statement rows = file.prepare("SELECT * FROM " + table + " ORDER BY rowid");
        for (digest.addData(table); rows.step(); digest.addData("\n"))
            for (int i = 0; i < rows.columnCount(); ++i) digest.addData(rows.text(i).toUtf8() + '|');
    }
    return digest.result();
}

} // namespace

/// Kills the program of a club at random moments and starts it again, repeatedly.
class KillTest : public ::testing::Test {
protected:
    KillTest() {
        makeProgramFolder(m_program, 2026, true);
        m_base = bytesOf(database());
    }

    QString database() const { return m_program + u"/uw01.mdb"_qs; }
    QString script() const { return m_folder.filePath(u"script.txt"_qs); }

    /// Writes a start on the current day of the script and the actions from `first` on.
    void writeScript(qsizetype first, const QString& behindEach = {}) {
        QString day = u"today 2026-03-14"_qs;
        for (const QString& line : m_actions.mid(0, first).join(QString()).split(u'\n'))
            if (line.startsWith(u"today ")) day = line;
        QString text = day + u"\nstart\nlogin Admin \"\"\n"_qs;
        m_begins.clear();
        for (qsizetype i = first; i < m_actions.size(); ++i) {
            m_begins += static_cast<int>(text.count(u'\n')) + 1;
            text +=
                m_actions[i] + u"boxes\n"_qs + QString(behindEach).replace(u"%1"_qs, QString::number(i + 1));
        }
        m_begins += static_cast<int>(text.count(u'\n')) + 1;
        write(script(), (text + u"boxes\n"_qs).toUtf8());
    }

    void start(QProcess& program) const {
        program.start(QStringLiteral(UW_PLAY), {u"--verbose"_qs, u"--folder"_qs, m_program, script()});
        ASSERT_TRUE(program.waitForStarted());
    }

    /// Remembers the file's content after each action of an undisturbed run.
    void learn() {
        m_digests = {digestOf(database())};
        writeScript(0, u"sh \"cp uw01.mdb %1.stand\"\n"_qs);
        QProcess program;
        QElapsedTimer timer;
        timer.start();
        start(program);
        ASSERT_TRUE(program.waitForFinished(120'000));
        m_pace = static_cast<int>(timer.elapsed() / m_actions.size());
        ASSERT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
        for (qsizetype i = 1; i <= m_actions.size(); ++i)
            m_digests += digestOf(m_program + u"/%1.stand"_qs.arg(i));
        restore();
    }

    void restore() const { write(database(), m_base); }

    /// The number of the script's actions that a run has finished, by the lines that it printed.
    qsizetype finishedBy(const QByteArray& told) const {
        int line = 0;
        for (const QByteArray& one : told.split('\n'))
            if (!one.startsWith("= ")) line = std::max(line, one.left(one.indexOf(':')).toInt());
        qsizetype finished = 0;
        while (finished + 1 < m_begins.size() && line >= m_begins[finished + 1]) ++finished;
        return finished;
    }

    /// Kills a run that continues with action `next`. Returns how many further actions are in the file.
    qsizetype killed(qsizetype next) {
        writeScript(next);
        QProcess program;
        start(program);
        QByteArray told;
        const bool inTheStart = m_random.bounded(8) == 0;
        const QByteArray firstOfActions = QByteArray::number(m_begins.first()) + ": ";
        while (!inTheStart && !told.contains('\n' + firstOfActions) && program.waitForReadyRead())
            told += program.readAllStandardOutput();
        QDeadlineTimer deadline(m_random.bounded((inTheStart ? 10 : 6) * m_pace));
        while (!deadline.hasExpired() && program.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            told += program.readAllStandardOutput();
        program.kill();
        program.waitForFinished();
        told += program.readAllStandardOutput();
        EXPECT_EQ(program.readAllStandardError().toStdString(), "");
        QFile::remove(m_program + u"/temp/uwtmp.mdb"_qs);
        return told.isEmpty() ? whole(next, 0) : whole(next, finishedBy(told));
    }

    /// Requires all finished actions in the file, and the next one wholly or not at all.
    qsizetype whole(qsizetype next, qsizetype finished) {
        const QByteArray found = digestOf(database());
        const qsizetype last = next + finished;
        if (found == m_digests[last]) return finished;
        const bool isNext = last < m_actions.size() && found == m_digests[last + 1];
        EXPECT_TRUE(isNext) << "killed behind action " << last << ", in or before\n"
                            << m_actions.value(last).toStdString();
        return finished + 1;
    }

    QTemporaryDir m_folder;
    QString m_program = m_folder.filePath(u"programm"_qs);
    QByteArray m_base;
    QStringList m_actions = readActions();
    QByteArrayList m_digests; ///< [n] after n actions
    QList<int> m_begins;      ///< the line of the script on which each action begins, and the end
    QRandomGenerator m_random{2026};
    int m_pace = 0; ///< duration of an action in milliseconds
};

// Set UW_KILLS=1000 for a long run.
TEST_F(KillTest, WhatWasFinishedStaysAndWhatWasNotIsThereWhollyOrNotAtAll) {
    learn();
    ASSERT_FALSE(HasFatalFailure());
    const int kills = qEnvironmentVariableIsSet("UW_KILLS") ? qEnvironmentVariableIntValue("UW_KILLS") : 40;
    qsizetype next = 0;
    for (int kill = 0; kill < kills; ++kill) {
        next += killed(next);
        ASSERT_FALSE(HasFailure()) << "kill " << kill;
        if (next < m_actions.size()) continue;
        restore();
        next = 0;
    }
    // A safety copy gets its name only when complete.
    QDirIterator copies(m_program + u"/Sicherung"_qs, {u"*.mdb"_qs});
    while (copies.hasNext()) digestOf(copies.next());
}
