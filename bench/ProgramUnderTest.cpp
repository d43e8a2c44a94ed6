#include "ProgramUnderTest.h"

#include "Login.h"
#include "ProgramFolder.h"
#include "RawFile.h"
#include "Screens.h"
#include "TextBox.h"
#include "Theme.h"

#include <QPushButton>
#include <cstdio>
#include <cstdlib>

BenchDesk::BenchDesk(int& argc, char** argv, MessageBoxes& boxes)
    : m_application(argc, argv) {
    QApplication::setQuitOnLastWindowClosed(false);
    Theme::apply(m_application, Theme::Mode::Light);
    setClock(&m_clock);
    setMessageBoxes(&boxes);
}

MsgBoxResult NoBoxes::show(const QString& text, int, const QString& title) {
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(title), qUtf8Printable(text));
    std::exit(1);
}

namespace {

constexpr int kinds = 30;
constexpr int waters = 12;
constexpr int years = 20;

void addNames(RawFile& file) {
    for (int i = 1; i <= kinds; ++i)
        file.execute(qUtf8Printable(u"INSERT INTO Fisch(FName, Notiz) VALUES ('Fischart %1', '')"_qs.arg(i)));
    for (int i = 1; i <= waters; ++i)
        file.execute(
            qUtf8Printable(u"INSERT INTO Gewaesser(GName, Notiz) VALUES ('Gewässer %1', '')"_qs.arg(i)));
}

void addCatches(RawFile& file, int from, int to, int year, int month) {
    sqlite3_stmt* insert =
        file.prepare("INSERT INTO Fang(FangJahr, FangMonat, FischNr, GNr, Notiz, Anzahl, Gewicht) "
                     "VALUES (?1, ?2, ?3, ?4, '', ?5, ?6)");
    for (int i = from; i < to; ++i) {
        sqlite3_bind_int(insert, 1, year ? year : benchYear - 1 - i % years);
        sqlite3_bind_int(insert, 2, month ? month : 1 + i / years % 12);
        sqlite3_bind_int(insert, 3, 1 + i % kinds);
        sqlite3_bind_int(insert, 4, 1 + i % waters);
        sqlite3_bind_int(insert, 5, 1 + i % 5);
        sqlite3_bind_int(insert, 6, 100 + i % 4000);
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
}

} // namespace

void makeFolderWithCatches(const QString& folder, int catches, int ofThisMonth) {
    makeProgramFolder(folder, benchYear, false);
    RawFile file(folder + u"/uw01.mdb"_qs);
    file.execute("BEGIN");
    addNames(file);
    addCatches(file, 0, ofThisMonth, benchYear, benchMonth);
    addCatches(file, ofThisMonth, catches, 0, 0);
    file.execute("COMMIT");
}

void logIn() {
    screen<Login>().txtBenutzer->setText(u"Admin"_qs);
    screen<Login>().cmdOK->click();
}
