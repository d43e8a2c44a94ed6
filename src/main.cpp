#include "Clock.h"
#include "EndSignals.h"
#include "LibreOfficeCalc.h"
#include "LibreOfficeWriter.h"
#include "Program.h"
#include "QtMessageBoxes.h"
#include "QtPrintDialogs.h"
#include "Theme.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

/// The real clock, boxes, print dialogs and office programs.
class Surroundings {
public:
    Surroundings() {
        setClock([] { return QDateTime::currentDateTime(); });
        setMessageBoxes(&m_boxes);
        setPrintDialogs(&m_printing);
        officeProgram<Spreadsheet> = &m_calc;
        officeProgram<WordProcessor> = &m_writer;
    }

private:
    QtMessageBoxes m_boxes;
    QtPrintDialogs m_printing;
    LibreOfficeCalc m_calc;
    LibreOfficeWriter m_writer;
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    // By this name the desktop finds the menu entry, and with it the icon, of a window.
    QApplication::setDesktopFileName(u"uferwart"_s);
    Theme::loadFonts(QApplication::applicationDirPath() + u"/fonts"_s);
    Theme::apply(Theme::desktopMode());
    static Surroundings surroundings; // static, as the libraries keep pointers into it

    Program program(QApplication::applicationDirPath());
    QObject::connect(&program, &Program::ended, &application, &QApplication::quit, Qt::QueuedConnection);
    const EndSignals signals;
    // From within the event loop, or a box of the start could not be ended by the desktop.
    QMetaObject::invokeMethod(&program, &Program::start, Qt::QueuedConnection);
    return QApplication::exec();
}
