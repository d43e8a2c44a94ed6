#include "ErrorOf.h"
#include "PrintRun.h"
#include "ReportPainter.h"
#include "ReportPaper.h"
#include "ReportSample.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

const QDate someDay(2026, 3, 14);

// A page, with one pixel for each tenth of a millimetre.
QImage pictureOf(const Report& report, int page) {
    QImage picture(ReportPaper::width, ReportPaper::height, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    const auto document = report.document();
    ReportPainter(*document, someDay).paint(painter, page);
    return picture;
}

// The area counts from the corner of the page's body.
bool hasInk(const QImage& picture, const QRect& area) {
    const QRect there = area.translated(ReportPaper::left, ReportPaper::top);
    for (int y = there.top(); y <= there.bottom(); ++y) {
        for (int x = there.left(); x <= there.right(); ++x) {
            if (picture.pixel(x, y) != qRgb(255, 255, 255)) return true;
        }
    }
    return false;
}

int pagesIn(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) return -1;
    const QByteArray pdf = file.readAll();
    return static_cast<int>(pdf.count("/Type /Page\n"));
}

QByteArray contentsOf(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A page with one label.
QImage pictureOf(const QString& text, const QRect& place, const ReportLook& look = {}) {
    Report report(u"Eins"_s);
    report.section(u"Section2"_s) = {
        u"Section2"_s, 400, {{ReportControl::Kind::Label, u"a"_s, place, look, text}}};
    return pictureOf(report, 0);
}

TEST(ReportPainterTest, ANumberShrinksWhereATextIsCut) {
    const QRect place(0, 0, 100, 50);
    for (const auto& [text, other, isCut] : {std::tuple{u"1.234.567,25"_s, u"1.234.567,35"_s, false},
                                             {u"D-012345678"_s, u"D-012345679"_s, false},
                                             {u"Oder-Spree-Kanal 1"_s, u"Oder-Spree-Kanal 2"_s, true}}) {
        EXPECT_EQ(pictureOf(text, place) == pictureOf(other, place), isCut) << qPrintable(text);
        EXPECT_FALSE(hasInk(pictureOf(text, place), {100, 0, 300, 100}));
    }
}

TEST(ReportPainterTest, ALabelThatGrowsShrinksFirstThenMovesWhatIsBelow) {
    struct Case {
        int words;
        int height;
    };
    for (const Case& c : {Case{1, 100}, Case{4, 100}, Case{8, 131}, Case{12, 161}}) {
        Report report(u"Eins"_s);
        ReportSection& head = report.section(u"Section2"_s);
        head.height = 100;
        head.controls = {{ReportControl::Kind::Label,
                          u"Name"_s,
                          {0, 0, 400, 50},
                          {.points = 9.5, .leastPoints = 7.5},
                          u"Forelle "_s.repeated(c.words).trimmed()},
                         {ReportControl::Kind::Line, u"darunter"_s, {0, 60, 400, 0}}};
        const auto document = report.document();
        const int height = document->section(ReportLayout::PageHeader).height;
        EXPECT_NEAR(height, c.height, 1) << c.words << ", as high as this release's font sets its lines";
        EXPECT_TRUE(hasInk(pictureOf(report, 0), {0, height - 41, 400, 3})) << c.words;
        EXPECT_EQ(head.height, 100) << "the report is ready for the next text";
    }
}

TEST(ReportPainterTest, NoTextLeavesItsPlaceWhateverItsAlignment) {
    using Align = ReportLook::Align;
    const QRect place(300, 0, 200, 50);
    for (const Align align : {Align::Left, Align::Centre, Align::Right}) {
        for (const QString& text : {u"Europäischer Flussaal "_s.repeated(5), u"Aal"_s}) {
            const QImage picture = pictureOf(text, place, {.align = align});
            EXPECT_TRUE(hasInk(picture, place));
            for (const QRect& beside : {QRect(0, 0, 300, 400), {500, 0, 500, 400}, {0, 50, 1000, 350}})
                EXPECT_FALSE(hasInk(picture, beside)) << qPrintable(text);
        }
    }
}

TEST(ReportPainterTest, NumbersEndOnOneEdgeAndRulesAreOfOneWidthAtAnyScale) {
    SampleReport report;
    report.bindRows(11);
    const QImage picture = pictureOf(report, 0);
    for (const int row : {0, 9}) {
        const int top = 600 + row * 195;
        EXPECT_TRUE(hasInk(picture, {180, top + 5, 20, 50}));
        EXPECT_FALSE(hasInk(picture, {200, top + 5, 20, 50})) << "nothing between the columns";
    }
    for (const double scale : {0.3, 0.37, 0.5, 1.1}) {
        QImage page(int(ReportPaper::width * scale), int(ReportPaper::height * scale), QImage::Format_RGB32);
        page.fill(Qt::white);
        QPainter painter(&page);
        painter.scale(scale, scale);
        const auto document = report.document();
        ReportPainter(*document, someDay).paint(painter, 0);
        const int column = int((ReportPaper::left + 1400) * scale);
        int black = 0;
        for (int y = int((ReportPaper::top + 650) * scale); y < int(2600 * scale); ++y)
            black += page.pixel(column, y) == qRgb(0, 0, 0) ? 1 : 0;
        EXPECT_EQ(black, 9 * std::max(1, qRound(2 * scale))) << scale;
    }
}

TEST(ReportPainterTest, TheTableClosesBelowTheLastRowOfAPage) {
    SampleReport report;
    report.control(u"Section1"_s, u"Line1"_s).look.closingInk = qRgb(255, 0, 0);
    report.bindRows(11);
    const QImage page = pictureOf(report, 0);
    const auto below = [&](int row) {
        return page.pixel(ReportPaper::left + 1400, ReportPaper::top + 600 + row * 195);
    };
    EXPECT_EQ(below(9), qRgb(0, 0, 0));
    EXPECT_EQ(below(10), qRgb(255, 0, 0));
}

TEST(PrintRunTest, ThePdfHasTheWantedPagesAndItsTextCanBeSearched) {
    QTemporaryDir folder;
    const QString all = folder.filePath(u"alle.pdf"_s);
    const QString some = folder.filePath(u"einige.pdf"_s);
    SampleReport report;
    const std::vector<Value> row{7, QString(u"Oder-Spree-Kanal "_s).repeated(9), 1234};
    report.bind(rowsOf({u"Nr"_s, u"Gewässer"_s, u"Gewicht"_s}, QVector<std::vector<Value>>(25, row)));
    const auto document = report.document();
    printReport(*document, {all});
    printReport(*document, {some, nullptr, {2, 0, 2, 0}});
    EXPECT_EQ(pagesIn(all), 3);
    EXPECT_EQ(pagesIn(some), 4);
    if (QStandardPaths::findExecutable(u"pdftotext"_s).isEmpty())
        GTEST_SKIP() << "needs the package poppler-utils";
    QProcess reader;
    reader.start(u"pdftotext"_s, {u"-layout"_s, u"-f"_s, u"3"_s, all, u"-"_s});
    ASSERT_TRUE(reader.waitForFinished());
    const QString text = QString::fromUtf8(reader.readAllStandardOutput()).simplified();
    EXPECT_TRUE(text.startsWith(u"Erkner 7 Oder-Spree-Kanal Oder-Spr… 1.234"_s) ||
                text.contains(u"… 1.234"_s))
        << qPrintable(text);
    EXPECT_TRUE(text.contains(u"30.850"_s)) << qPrintable(text);
    EXPECT_TRUE(text.contains(u"Seite 3 von 3"_s)) << qPrintable(text);
}

TEST(PrintRunTest, AFileThatCannotBeWrittenIsAnErrorAndStaysAsItWas) {
    QTemporaryDir folder;
    SampleReport report;
    report.bindRows(200);
    const auto document = report.document();
    EXPECT_EQ(errorOf([&] { printReport(*document, {folder.filePath(u"fehlt/a.pdf"_s)}); }), 76);
    EXPECT_EQ(errorOf([&] { printReport(*document, {folder.path()}); }), 75);

    const QString name = folder.filePath(u"da.pdf"_s);
    printReport(*document, {name});
    const QByteArray before = contentsOf(name);
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const auto usualSignal = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit little{1000, usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &little);
    const int error = errorOf([&] { printReport(*document, {name}); });
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, usualSignal);
    EXPECT_EQ(error, 75);
    EXPECT_EQ(contentsOf(name), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1) << "nothing half-written beside it";
}

} // namespace
