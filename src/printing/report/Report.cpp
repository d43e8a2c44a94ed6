#include "Report.h"

#include "ReportDocument.h"
#include "RuntimeError.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Names compare without regard to case.
auto& named(auto& items, const QString& name) {
    const auto found = std::ranges::find_if(
        items, [&](const auto& item) { return item.name.compare(name, Qt::CaseInsensitive) == 0; });
    if (found == items.end()) throw runtimeError(RuntimeError::itemNotFound, name);
    return *found;
}

} // namespace

Report::Report(const QString& caption)
    : m_caption(caption)
    , m_sections{{{u"Section4"_s}, {u"Section2"_s}, {u"Section1"_s}, {u"Section3"_s}, {u"Section5"_s}}} {}

ReportSection& Report::section(const QString& name) { return named(m_sections, name); }

ReportControl& Report::control(const QString& section, const QString& name) {
    return named(this->section(section).controls, name);
}

std::shared_ptr<const ReportDocument> Report::document() const {
    return std::make_shared<ReportDocument>(m_caption, m_sections, m_rows);
}
