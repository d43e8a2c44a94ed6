#include "Report.h"

#include "ReportDocument.h"
#include "RuntimeError.h"

using namespace Qt::StringLiterals;

Report::Report(const QString& caption)
    : m_caption(caption)
    , m_sections{ReportSection(u"Section4"_s), ReportSection(u"Section2"_s), ReportSection(u"Section1"_s),
                 ReportSection(u"Section3"_s), ReportSection(u"Section5"_s)}
    , m_rows(std::make_shared<ReportRows>()) {}

ReportSection& Report::section(const QString& name) {
    const QString folded = name.toCaseFolded();
    for (ReportSection& section : m_sections) {
        if (section.name().toCaseFolded() == folded) return section;
    }
    throw runtimeError(RuntimeError::itemNotFound, name);
}

ReportControl& Report::control(const QString& section, const QString& name) {
    return this->section(section).control(name);
}

void Report::bind(ReportRowSource& source) { m_rows = std::make_shared<ReportRows>(source); }

std::shared_ptr<const ReportDocument> Report::document() const {
    return std::make_shared<ReportDocument>(m_caption, m_sections, m_rows);
}
