#include "ComboBox.h"
#include "FixedClock.h"
#include "MsgBox.h"
#include "QtPrintDialogs.h"
#include "RecordingScreen.h"
#include "ReportDocument.h"
#include "ReportPageView.h"
#include "ReportSample.h"
#include "Screens.h"
#include "Stage.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "Vorschau.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class Boxes : public MessageBoxes {
public:
    MsgBoxResult show(const QString& text, int, const QString&) override {
        texts.append(text);
        return vbOK;
    }
    QStringList texts;
};

class Dialogs : public PrintDialogs {
public:
    std::optional<PrintTarget> choosePrintTarget(const ReportDocument& document, int page) override {
        asked = document.caption() + u' ' + QString::number(page);
        if (whileOpen) whileOpen();
        if (file.isEmpty()) return std::nullopt;
        return PrintTarget{file};
    }
    QString choosePdfFile(const QString& proposal) override {
        asked = proposal;
        if (whileOpen) whileOpen();
        return file;
    }
    int printerCount() const override { return 1; }

    QString asked;
    QString file;
    std::function<void()> whileOpen;
};

class ReportPreviewTest : public ::testing::Test {
protected:
    ReportPreviewTest() {
        setMessageBoxes(&boxes);
        setPrintDialogs(&dialogs);
        stage.resize(900, 600);
        stage.show();
        caller.Show();
        log.clear();
    }
    ~ReportPreviewTest() override {
        Screens::removeAll();
        settle();
        setPrintDialogs(nullptr);
        setMessageBoxes(nullptr);
    }

    static void settle() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    void open(int rows) {
        report.bindRows(rows);
        preview().zeige(report.document());
    }
    static Vorschau& preview() { return the<Vorschau>(); }
    static void press(const QString& key) { preview().Toolbar1->key(key)->click(); }
    static QString where() { return preview().txtSeite->text() + u' ' + preview().lblSeiten->text(); }
    QString takeLog() { return std::exchange(log, {}).join(u' '); }

    FixedClock clock;
    Boxes boxes;
    Dialogs dialogs;
    QStringList log;
    Stage stage;
    RecordingScreen caller{u"caller"_s, log};
    RecordingScreen other{u"other"_s, log};
    SampleReport report{u"Besatz - Plan"_s};
};

TEST_F(ReportPreviewTest, PagesTurnByKeysButtonsAndTheirNumber) {
    open(25);
    ReportPageView* view = preview().pageView;
    EXPECT_FALSE(preview().Toolbar1->key(u"tbZurueck"_s)->isEnabled());
    QTest::keyClick(view, Qt::Key_PageDown);
    EXPECT_EQ(where(), u"1 von 3"_s) << "first its lower half";
    while (view->verticalScrollBar()->value() < view->verticalScrollBar()->maximum())
        QTest::keyClick(view, Qt::Key_PageDown);
    QTest::keyClick(view, Qt::Key_PageDown);
    EXPECT_EQ(where(), u"2 von 3"_s);
    EXPECT_EQ(view->verticalScrollBar()->value(), 0);
    QTest::keyClick(view, Qt::Key_PageUp);
    EXPECT_EQ(where(), u"1 von 3"_s);
    EXPECT_EQ(view->verticalScrollBar()->value(), view->verticalScrollBar()->maximum());
    QTest::keyClick(view, Qt::Key_End);
    QTest::keyClick(view, Qt::Key_PageDown);
    EXPECT_EQ(where(), u"3 von 3"_s);
    EXPECT_FALSE(preview().Toolbar1->key(u"tbWeiter"_s)->isEnabled());
    QTest::keyClick(view, Qt::Key_PageUp);
    press(u"tbErste"_s);
    EXPECT_EQ(where(), u"1 von 3"_s);

    const auto enter = [&](const QString& number) {
        preview().txtSeite->selectAll();
        QTest::keyClicks(preview().txtSeite, number + u'\r');
        return where();
    };
    EXPECT_EQ(enter(u"2"_s), u"2 von 3"_s);
    EXPECT_EQ(enter(u"99x"_s), u"3 von 3"_s) << "the letter is refused, the last page is the nearest";
    EXPECT_EQ(enter(u"0"_s), u"3 von 3"_s);
}

TEST_F(ReportPreviewTest, PrintingAndSavingAskFirstAndTellWhatFailed) {
    QTemporaryDir folder;
    open(25);
    press(u"tbWeiter"_s);
    press(u"tbDruck"_s);
    EXPECT_EQ(dialogs.asked, u"Besatz - Plan 1"_s);
    press(u"tbPdf"_s);
    EXPECT_EQ(dialogs.asked, u"Besatz - Plan 2026-03-14.pdf"_s);
    EXPECT_TRUE(QDir(folder.path()).isEmpty()) << "called off";

    dialogs.file = folder.filePath(u"a.pdf"_s);
    press(u"tbPdf"_s);
    EXPECT_TRUE(QFile::exists(dialogs.file));
    EXPECT_EQ(preview().lblAblage->text(), u"„a.pdf“ liegt jetzt im Ordner "_s + folder.path());
    EXPECT_TRUE(preview().lblAblage->isVisible());
    EXPECT_TRUE(boxes.texts.isEmpty());

    dialogs.file = folder.filePath(u"fehlt/a.pdf"_s);
    press(u"tbPdf"_s);
    press(u"tbDruck"_s);
    ASSERT_EQ(boxes.texts.size(), 2);
    EXPECT_TRUE(boxes.texts[0].startsWith(u"Die Datei '"_s)) << qPrintable(boxes.texts[0]);
    EXPECT_TRUE(boxes.texts[1].endsWith(u"Pfad nicht gefunden"_s)) << qPrintable(boxes.texts[1]);
    EXPECT_EQ(preview().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ReportPreviewTest, TheProgramMayEndWhileADialogIsOpen) {
    QTemporaryDir folder;
    dialogs.file = folder.filePath(u"a.pdf"_s);
    dialogs.whileOpen = [] { Screens::removeAll(); };
    open(25);
    press(u"tbDruck"_s);
    settle();
    open(25);
    press(u"tbPdf"_s);
    settle();
    EXPECT_FALSE(isLoaded<Vorschau>());
    EXPECT_FALSE(QFile::exists(dialogs.file));
}

TEST(QtPrintDialogsTest, TheNextPdfIsProposedInTheFolderOfTheLast) {
    QTemporaryDir folder;
    QtPrintDialogs dialogs;
    QString proposedIn;
    const auto ask = [&](const QString& file) {
        QTimer::singleShot(0, [&proposedIn, file] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            proposedIn = dialog->directory().path();
            if (!file.isEmpty()) dialog->selectFile(file);
            static_cast<QDialog*>(dialog)->done(file.isEmpty() ? QDialog::Rejected : QDialog::Accepted);
        });
        return dialogs.choosePdfFile(u"a.pdf"_s);
    };
    EXPECT_EQ(ask(folder.filePath(u"b.pdf"_s)), folder.filePath(u"b.pdf"_s));
    EXPECT_EQ(ask({}), QString());
    EXPECT_EQ(proposedIn, folder.path());
}

/// Fills in Qt's own dialog as a user does.
TEST(QtPrintDialogsTest, ThePagesThatWereChosenArePrinted) {
    const QTemporaryDir folder;
    SampleReport report;
    report.bindRows(45);
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->findChild<QLineEdit*>(u"filename"_s)->setText(folder.filePath(u"a.pdf"_s));
        dialog->findChild<QAbstractButton*>(u"printRange"_s)->click();
        dialog->findChild<QSpinBox*>(u"to"_s)->setValue(3);
        dialog->findChild<QSpinBox*>(u"from"_s)->setValue(2);
        dialog->accept();
    });
    const auto target = QtPrintDialogs().choosePrintTarget(*report.document(), 0);
    ASSERT_TRUE(target);
    EXPECT_EQ(target->pages, (QVector<int>{1, 2}));
    EXPECT_EQ(target->pdfFile, folder.filePath(u"a.pdf"_s));
}

} // namespace
