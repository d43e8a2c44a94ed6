#pragma once

#include "PrintDialog.h"

/// The platform's print dialog, above the active window.
class PrintQtDialog : public PrintDialog {
public:
    std::optional<PrintTarget> choose(const QString& caption, int pages, int page) override;
};
