#include "Report.h"

#include "PrintDialog.h"
#include "PrintRun.h"
#include "ReportDocument.h"
#include "RuntimeError.h"
#include "Screens.h"
#include "Vorschau.h"

Report::Report(const QString& caption)
    : m_caption(caption)
    , m_sections{ReportSection(u"Section4"_qs), ReportSection(u"Section2"_qs), ReportSection(u"Section1"_qs),
                 ReportSection(u"Section3"_qs), ReportSection(u"Section5"_qs)}
    , m_rows(std::make_shared<ReportRows>()) {}

ReportSection& Report::section(const QString& name) {
    const QString folded = name.toCaseFolded();
    for (ReportSection& section : m_sections) {
        if (section.name().toCaseFolded() == folded) return section;
    }
    throw runtimeError(3265, name);
}

ReportControl& Report::control(const QString& section, const QString& name) {
    return this->section(section).control(name);
}

void Report::bind(ReportRowSource& source) { m_rows = std::make_shared<ReportRows>(source); }

std::shared_ptr<const ReportDocument> Report::document() const {
    return std::make_shared<ReportDocument>(m_caption, m_sections, m_rows);
}

Screen& Report::window() const { return screen<Vorschau>(); }

void Report::Show() const {
    const auto shown = document();
    screen<Vorschau>().zeige(shown);
}

bool Report::PrintReport() const {
    const auto printed = document();
    const auto target = choosePrintTarget(m_caption, printed->pageCount());
    if (target) printReport(*printed, *target);
    return target.has_value();
}
