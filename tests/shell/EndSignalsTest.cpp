#include "ProgramFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Waits until the process has a handler for the signal. False if it gets none.
bool waitUntilCaught(qint64 process, int signal) {
    constexpr int patienceMilliseconds = 30'000;
    QElapsedTimer waited;
    for (waited.start(); !waited.hasExpired(patienceMilliseconds); QThread::msleep(10)) {
        QFile status(u"/proc/%1/status"_s.arg(process));
        if (!status.open(QIODevice::ReadOnly)) continue;
        const QString text = QString::fromLatin1(status.readAll());
        const QString caught = text.section(u"SigCgt:"_s, 1).section(u'\n', 0, 0).trimmed();
        if (caught.toULongLong(nullptr, 16) >> (signal - 1) & 1U) return true;
    }
    return false;
}

/// Starts a copy of the program in the folder, since it looks for its files beside itself.
void startIn(const QString& folder, QProcess& program) {
    const QString file = folder + u"/uferwart"_s;
    ASSERT_TRUE(QFile::copy(QStringLiteral(UW_PROGRAM), file));
    program.start(file, QStringList());
    ASSERT_TRUE(program.waitForStarted());
}

TEST(EndSignalsTest, EndTheProgramWithItsSafetyCopy) {
    for (const int signal : {SIGTERM, SIGHUP}) {
        const QTemporaryDir folder;
        makeProgramFolder(folder.path(), 2026, false);
        QProcess program;
        startIn(folder.path(), program);
        ASSERT_TRUE(waitUntilCaught(program.processId(), signal));
        ::kill(static_cast<pid_t>(program.processId()), signal);
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit) << signal;
        EXPECT_EQ(program.exitCode(), 0) << signal;
        EXPECT_EQ(QDir(folder.path() + u"/Sicherung"_s).count(), 2U + 1U) << signal;
    }
}

} // namespace
