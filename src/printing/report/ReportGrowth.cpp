#include "ReportGrowth.h"

#include "ReportFont.h"
#include "ReportSection.h"
#include "ReportTypesetter.h"

#include <QFontMetricsF>
#include <cmath>
#include <limits>

namespace {

struct Growth {
    double points;
    int tenths; ///< to be added to the label's height
};

Growth growthOf(const ReportControl& label) {
    constexpr double step = 0.5;
    constexpr int unit = ReportTypesetter::unitsPerTenth;
    const auto linesAt = [&](double points) {
        const QFont font = ReportFont::font(points, label.isBold());
        return ReportFont::lines(label.caption(), font, double(label.place().width()) * unit,
                                 std::numeric_limits<int>::max())
            .size();
    };
    double points = label.points();
    qsizetype lines = linesAt(points);
    for (; lines > 1 && points > label.leastPoints(); lines = linesAt(points))
        points = std::max(label.leastPoints(), points - step);
    const double line = QFontMetricsF(ReportFont::font(points, label.isBold())).lineSpacing() / unit;
    return {points, lines > 1 ? int(std::ceil(double(lines - 1) * line)) : 0};
}

} // namespace

void growToTexts(ReportSection& section) {
    for (std::size_t number = 0; number < section.controls().size(); ++number) {
        const ReportControl& label = section.controls()[number];
        if (!label.isGrowing() || label.caption().isEmpty()) continue;
        const auto [points, tenths] = growthOf(label);
        section.grow(number, points, tenths);
    }
}
