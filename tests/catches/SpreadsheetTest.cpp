#include "Spreadsheet.h"

#include "CsvDatei.h"
#include "ErrorOf.h"
#include "LibreOfficeCalc.h"
#include "MsgBox.h"
#include "RuntimeError.h"
#include "Session.h"
#include "modFAuswert.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A spreadsheet program that records the calls.
class RecordingProgram final : public OfficeProgram<Spreadsheet> {
public:
    QStringList steps;
    int errorOfRunning = 429;

    std::unique_ptr<Spreadsheet> running() override { return reached(u"running"_s, errorOfRunning); }
    std::unique_ptr<Spreadsheet> start() override { return reached(u"start"_s, 0); }

private:
    class Sheet final : public Spreadsheet {
    public:
        explicit Sheet(QStringList& steps)
            : m_steps(steps) {}
        void setVisible(bool on) override { m_steps += on ? u"visible"_s : u"hidden"_s; }
        void openWorkbook(const QString& file) override {
            m_steps += u"open "_s + QFileInfo(file).fileName();
        }
        void autoFitColumns(const QString& range) override { m_steps += u"fit "_s + range; }

    private:
        QStringList& m_steps;
    };

    std::unique_ptr<Spreadsheet> reached(const QString& step, int error) {
        steps += step;
        if (error != 0) throw RuntimeError{error, {}};
        return std::make_unique<Sheet>(steps);
    }
};

class StarteExcelFang : public ::testing::Test {
protected:
    StarteExcelFang() {
        QDir(folder.path()).mkdir(u"SeqData"_s);
        beginSession(folder.path());
        officeProgram<Spreadsheet> = &program;
    }
    ~StarteExcelFang() override { officeProgram<Spreadsheet> = nullptr; }

    QTemporaryDir folder;
    RecordingProgram program;
};

const QStringList work = {u"visible"_s, u"open Fang.csv"_s, u"fit A:A"_s, u"fit B:B"_s,
                          u"fit C:C"_s, u"fit D:D"_s,       u"fit E:E"_s, u"fit F:F"_s};

TEST_F(StarteExcelFang, UsesTheRunningSpreadsheetElseStartsOne) {
    program.errorOfRunning = 0;
    modFAuswert::StarteExcelFang();
    EXPECT_EQ(program.steps, QStringList{u"running"_s} + work);

    program.steps.clear();
    program.errorOfRunning = 429;
    modFAuswert::StarteExcelFang();
    EXPECT_EQ(program.steps, (QStringList{u"running"_s, u"start"_s} + work));
}

TEST(CsvDatei, FailsLoudlyAndKeepsWhatIsThereWhenItCannotBegin) {
    QTemporaryDir folder;
    EXPECT_EQ(errorOf([&] { CsvDatei(folder.filePath(u"fehlt/FANG.csv"_s)); }), 76);
    EXPECT_EQ(errorOf([&] { CsvDatei(folder.path()); }), 70);
    EXPECT_EQ(errorOf([] {
                  CsvDatei full(u"/dev/full"_s);
                  full.writeText(u"Hecht", 50);
                  full.close();
              }),
              61);
    // Not closed, as after an error that the caller reports.
    const QString path = folder.filePath(u"FANG.csv"_s);
    CsvDatei(path).writeText(u"Hecht", 50);
    EXPECT_EQ(QFileInfo(path).size(), 6);
}

TEST(CsvDatei, LeavesAFileAloneThatARunningOfficeHolds) {
    QTemporaryDir folder;
    QFile(folder.filePath(u".~lock.FANG.csv#"_s)).open(QIODevice::WriteOnly);
    QProcess office;
    ASSERT_TRUE(QFile::copy(u"/bin/sleep"_s, folder.filePath(u"soffice.bin"_s)));
    office.start(folder.filePath(u"soffice.bin"_s), {u"60"_s});
    ASSERT_TRUE(office.waitForStarted());
    const auto held = [&] { return errorOf([&] { CsvDatei(folder.filePath(u"FANG.csv"_s)); }) == 70; };
    // A process gets its name a moment after its start.
    for (int look = 0; look < 100 && !held(); ++look) QThread::msleep(10);
    EXPECT_TRUE(held());
    office.kill();
    office.waitForFinished();
    // The killed office has left its lock. Any other running office seems to hold it: that of another test
    // ends soon, that of a user does not.
    for (int look = 0; look < 100 && held(); ++look) QThread::msleep(100);
    if (held() && QProcess::execute(u"pgrep"_s, {u"-x"_s, u"soffice.bin"_s}) == 0)
        GTEST_SKIP() << "needs an end of the office that runs here";
    EXPECT_FALSE(held());
}

/// Converts the file with the filter that opens it for the user.
TEST(LibreOfficeCalc, ReadsFieldsAsWritten) {
    const QString office = QStandardPaths::findExecutable(u"soffice"_s);
    if (office.isEmpty()) GTEST_SKIP() << "needs the package libreoffice-calc";
    QTemporaryDir folder;
    const QString path = folder.filePath(u"FANG.csv"_s);
    CsvDatei file(path);
    for (const QString& fish : {u"\"Äsche"_s, u"Zander\""_s, u"=1+1"_s}) {
        for (const QString& text : {u"1              "_s, fish, u"Mühlteich"_s, u"2026.03"_s})
            file.writeText(text, 50);
        file.endLine();
    }
    file.close();
    QStringList words = LibreOfficeCalc::arguments(path);
    words.removeFirst();
    words.removeLast();
    words += {u"-env:UserInstallation=file://"_s + folder.path() + u"/profil"_s,
              u"--headless"_s,
              u"--convert-to"_s,
              u"html"_s,
              u"--outdir"_s,
              folder.path(),
              path};
    ASSERT_EQ(QProcess::execute(office, words), 0);
    QFile page(folder.filePath(u"FANG.html"_s));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(page.readAll());
    EXPECT_TRUE(html.contains(u"Äsche"_s) || html.contains(u"&Auml;sche"_s)) << qPrintable(html);
    EXPECT_TRUE(html.contains(u">=1+1<"_s)) << qPrintable(html);
    EXPECT_EQ(html.count(u"<td"_s), 3 * 4) << qPrintable(html);
}

} // namespace
