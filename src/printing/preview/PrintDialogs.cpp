#include "PrintDialogs.h"

#include "Clock.h"

using namespace Qt::StringLiterals;

namespace {
PrintDialogs* current = nullptr;
}

void setPrintDialogs(PrintDialogs* dialogs) { current = dialogs; }

PrintDialogs& printDialogs() {
    Q_ASSERT_X(current, "printDialogs", "setPrintDialogs() has not been called");
    return *current;
}

QString pdfNameFor(QString caption) {
    for (const QChar character : u"\\/:*?\"<>|"_s) caption.remove(character);
    return u"%1 %2.pdf"_s.arg(caption.simplified(), today().toString(Qt::ISODate));
}
