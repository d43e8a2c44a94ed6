#include "ProgramUnderTest.h"

#include "DataTable.h"
#include "Login.h"
#include "Measure.h"
#include "Screens.h"
#include "TextBox.h"
#include "Theme.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

int timesInForce = 1;

/// The memory of the process in MiB.
double residentMegabytes() {
    QFile status(u"/proc/self/statm"_s);
    if (!status.open(QIODevice::ReadOnly)) return 0;
    constexpr double pagesAMegabyte = 256;
    return status.readAll().split(' ').value(1).toDouble() / pagesAMegabyte;
}

} // namespace

void printRow(const char* work, Pair seconds, const char* baseline, double wanted) {
    const double ratio = std::round(100 * seconds.own / seconds.baseline) / 100; // as it is printed
    std::printf("%-38s x%-4d %10.3f ms  %-34s %10.3f ms %6.2f %6.2f%s %5.0f MiB\n", work, timesInForce,
                seconds.own * 1e3, baseline, seconds.baseline * 1e3, ratio, wanted,
                ratio <= wanted ? " " : "!", residentMegabytes());
    std::fflush(stdout);
}

void printGrid(DataTable& grid, int most) {
    const auto held = [] {
        const struct mallinfo2 heap = mallinfo2();
        return double(heap.uordblks + heap.hblkhd);
    };
    const int rows = grid.rowCount();
    double bytes = held();
    grid.clearRows();
    bytes -= held();
    std::printf("%-38s x%-4d %10d rows  %21.0f bytes a row", "  its grid", timesInForce, rows, bytes / rows);
    if (most > 0) std::printf(" (at most %d)%s", most, bytes / rows <= most ? "" : "!");
    std::printf("\n");
}

MsgBoxResult Nodding::show(const QString&, int style, const QString&) {
    return (style & vbYesNo) != 0 ? vbNo : vbOK;
}

MsgBoxResult NoBoxes::show(const QString& text, int, const QString& title) {
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(title), qUtf8Printable(text));
    std::exit(1);
}

BenchDesk::BenchDesk(int& argc, char** argv, MessageBoxes& boxes)
    : m_application(argc, argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s FOLDER-OF-CLUBS SIZE (see bench/run)\n", argv[0]);
        std::exit(2);
    }
    m_clubs = QString::fromLocal8Bit(argv[1]);
    m_size.times = timesInForce = QByteArray(argv[2]).toInt();
    QApplication::setQuitOnLastWindowClosed(false);
    Theme::apply(Theme::Mode::Light);
    setClock([] { return QDate(benchYear, benchMonth, 14).startOfDay(); });
    setMessageBoxes(&boxes);
    setPrintDialogs(&m_printing);
}

QString BenchDesk::club(ClubSize size) {
    const QString name = QString::number(size.times);
    const QString folder = m_copies.filePath(name);
    if (QDir(folder).exists()) return folder;
    for (const char16_t* inner : {u"/temp", u"/SeqData", u"/Graphics/bmp"})
        QDir().mkpath(folder + QString::fromUtf16(inner));
    for (const char16_t* file : {u"/uw01.mdb", u"/Graphics/bmp/Cut.bmp"})
        QFile::copy(m_clubs + u'/' + name + QString::fromUtf16(file), folder + QString::fromUtf16(file));
    return folder;
}

void logIn() {
    the<Login>().txtBenutzer->setText(u"Admin"_s);
    the<Login>().cmdOK->click();
}
