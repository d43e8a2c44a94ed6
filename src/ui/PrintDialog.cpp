#include "PrintDialog.h"

#include "PrintQtDialog.h"

namespace {
PrintDialog* inForce = nullptr;
}

void setPrintDialog(PrintDialog* dialog) { inForce = dialog; }

std::optional<PrintTarget> choosePrintTarget(const QString& caption, int pages, int page) {
    return inForce ? inForce->choose(caption, pages, page) : PrintQtDialog().choose(caption, pages, page);
}
