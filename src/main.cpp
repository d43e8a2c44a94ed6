#include "EndSignals.h"
#include "LibreOfficeCalc.h"
#include "LibreOfficeWriter.h"
#include "Program.h"
#include "QtMessageBoxes.h"
#include "QtPrintDialogs.h"
#include "ThemeSetup.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // By this name the desktop finds the menu entry, and with it the icon, of a window.
    QApplication::setDesktopFileName(u"uferwart"_qs);
    Theme::loadFonts(QApplication::applicationDirPath() + u"/fonts"_qs);
    Theme::apply(application, Theme::desktopMode(application));
    QtMessageBoxes boxes;
    setMessageBoxes(&boxes);
    QtPrintDialogs printing;
    setPrintDialogs(&printing);
    LibreOfficeCalc calc;
    setOfficeProgram<Spreadsheet>(&calc);
    LibreOfficeWriter writer;
    setOfficeProgram<WordProcessor>(&writer);

    Program program(QApplication::applicationDirPath());
    QObject::connect(&program, &Program::ended, &application, &QApplication::quit, Qt::QueuedConnection);
    const EndSignals signals;
    // From within the event loop, or a box of the start could not be ended by the desktop.
    QMetaObject::invokeMethod(&program, &Program::start, Qt::QueuedConnection);
    return QApplication::exec();
}
