#include "Theme.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

int colouredPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) count += qAlpha(image.pixel(x, y)) > 64 ? 1 : 0;
    }
    return count;
}

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& ink, const QColor& ground) {
    const double a = luminance(ink) + 0.05;
    const double b = luminance(ground) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

class ThemeTest : public ::testing::TestWithParam<Theme::Mode> {
protected:
    ThemeTest() { Theme::apply(GetParam()); }
    ~ThemeTest() override { Theme::apply(Theme::Mode::Light); }
};

TEST_P(ThemeTest, EveryPictureIsDrawnAtAnySize) {
    const QStringList names = QDir(u":/uferwart/icons"_s).entryList({u"*.svg"_s});
    ASSERT_GE(names.size(), 25);
    for (const QString& file : names) {
        const QIcon icon = Theme::icon(file.chopped(4));
        for (const qreal ratio : {1.0, 1.5, 2.0}) {
            const QPixmap picture = icon.pixmap(QSize(24, 24), ratio);
            EXPECT_EQ(picture.size(), (QSizeF(24, 24) * ratio).toSize()) << qPrintable(file);
            EXPECT_GT(colouredPixels(picture.toImage()), 20) << qPrintable(file);
        }
    }
    EXPECT_TRUE(Theme::icon(u"gibtesnicht"_s).isNull());
}

TEST_P(ThemeTest, TextsAreLegible) {
    const QPalette palette = QApplication::palette();
    const auto colour = [&](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
    const std::pair<QColor, QColor> pairs[] = {
        {colour(QPalette::WindowText), colour(QPalette::Window)},
        {colour(QPalette::Text), colour(QPalette::Base)},
        {colour(QPalette::Text), colour(QPalette::AlternateBase)},
        {colour(QPalette::PlaceholderText), colour(QPalette::Base)},
        {colour(QPalette::ButtonText), colour(QPalette::Button)},
        {colour(QPalette::HighlightedText), colour(QPalette::Highlight)},
        {colour(QPalette::ToolTipText), colour(QPalette::ToolTipBase)},
        {Theme::headingInk(), colour(QPalette::Window)},
        {Theme::headingInk(), Theme::barGround()},
        {colour(QPalette::WindowText), Theme::barItemGround(true, false, false)},
        {colour(QPalette::WindowText), Theme::barItemGround(false, false, true)},
        {QColor(Qt::white), Theme::darkBlue()},
    };
    for (const auto& [ink, ground] : pairs)
        EXPECT_GE(contrast(ink, ground), 4.5) << qPrintable(ink.name() + u" on "_s + ground.name());
    EXPECT_GE(contrast(Theme::outline(), colour(QPalette::Base)), 3.0);
    EXPECT_GE(contrast(Theme::accent(), colour(QPalette::Window)), 3.0);
}

INSTANTIATE_TEST_SUITE_P(BothModes, ThemeTest, ::testing::Values(Theme::Mode::Light, Theme::Mode::Dark));

} // namespace
