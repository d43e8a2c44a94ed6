#include "PrintDialogs.h"

#include "Clock.h"
#include "ReportDocument.h"

using namespace Qt::StringLiterals;

namespace {
PrintDialogs* current = nullptr;
}

void setPrintDialogs(PrintDialogs* dialogs) { current = dialogs; }

PrintDialogs& printDialogs() {
    Q_ASSERT_X(current, "printDialogs", "setPrintDialogs() has not been called");
    return *current;
}

bool printAfterDialog(const ReportDocument& document) {
    const auto target = printDialogs().choosePrintTarget(document.caption(), document.pageCount(), 0);
    if (target) printReport(document, *target);
    return target.has_value();
}

QString pdfNameFor(QString caption) {
    for (const QChar character : u"\\/:*?\"<>|"_s) caption.remove(character);
    return u"%1 %2.pdf"_s.arg(caption.simplified(), today().toString(Qt::ISODate));
}
