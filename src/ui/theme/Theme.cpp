#include "Theme.h"

#include "HouseStyle.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QLibraryInfo>
#include <QLocale>
#include <QPainter>
#include <QToolTip>
#include <QTranslator>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr const char* faulty = "faulty";

Theme::Mode currentMode = Theme::Mode::Light;

QColor either(QRgb light, QRgb onDark) { return QColor(currentMode == Theme::Mode::Dark ? onDark : light); }

void setDisabled(QPalette& palette) {
    const QColor pale = either(0xff7d8694, 0xff7f8896);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, pale);
    palette.setColor(QPalette::Disabled, QPalette::Base, palette.color(QPalette::Window));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, either(0xffc4cad4, 0xff454d5a));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, pale);
}

QPalette palette() {
    QPalette palette;
    const QColor ink = either(0xff1b2230, 0xffe7ebf3);
    const QColor window = either(0xfff3f5f8, 0xff20242c);
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Base, either(0xffffffff, 0xff171a20));
    palette.setColor(QPalette::AlternateBase, either(0xfff4f8fe, 0xff1c2129));
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::PlaceholderText, either(0xff667080, 0xff9aa4b4));
    palette.setColor(QPalette::Button, either(0xfffbfcfe, 0xff2c323d));
    palette.setColor(QPalette::ButtonText, ink);
    palette.setColor(Theme::headingRole, Theme::headingInk());
    palette.setColor(QPalette::Highlight, either(0xff2b62c4, 0xff35609f));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, either(0xff2b62c4, 0xff8fb6fa));
    palette.setColor(QPalette::LinkVisited, either(0xff6a4fb3, 0xffb9a5f2));
    palette.setColor(QPalette::ToolTipBase, either(0xff1f3f77, 0xffdfe9fb));
    palette.setColor(QPalette::ToolTipText, either(0xffffffff, 0xff17233b));
    palette.setColor(QPalette::Light, either(0xffffffff, 0xff3a414d));
    palette.setColor(QPalette::Midlight, either(0xffe6eaf0, 0xff2e343f));
    palette.setColor(QPalette::Mid, either(0xffc3cad5, 0xff4a5261));
    palette.setColor(QPalette::Dark, either(0xff8b94a4, 0xff6d7686));
    palette.setColor(QPalette::Shadow, either(0xff5a6372, 0xff0d0f13));
    setDisabled(palette);
    return palette;
}

constexpr double bodyPoints = 9.75;
/// The longest pause between two letters of a name typed to find it in a list. Qt's 400 ms are too short
/// for slow typists.
constexpr int slowestTypingMilliseconds = 2000;

QFont bodyFont() {
    QFont::insertSubstitutions(u"MS Sans Serif"_s, {u"Liberation Sans"_s, u"Arial"_s});
    QFont::insertSubstitution(u"Comic Sans MS"_s, u"Comic Neue"_s);
    QFont font(u"MS Sans Serif"_s);
    font.setPointSizeF(bodyPoints);
    font.setStyleHint(QFont::SansSerif);
    return font;
}

void loadGermanWords() {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString name = u"qtbase_de"_s;
    if (qApp->findChild<QTranslator*>(name)) return;
    auto* translator = new QTranslator(qApp);
    translator->setObjectName(name);
    if (translator->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
}

} // namespace

namespace Theme {

Mode mode() { return currentMode; }

QColor blue() { return {172, 199, 247}; }

QColor darkBlue() { return either(0xff1f3f77, 0xff294a82); }

QColor accent() { return either(0xff2b62c4, 0xff7fabf7); }

QColor headingInk() { return either(0xff1f3f77, 0xffb4cdf9); }

QColor fault() { return either(0xffc02626, 0xffff8a80); }

QColor outline() { return either(0xff8b94a4, 0xff6d7686); }

QColor faintLine() { return either(0xffc9d3e4, 0xff3d4757); }

QColor barGround() { return either(0xffe3ecfc, 0xff1a2233); }

QColor toolbarGround() { return either(0xffe9edf3, 0xff282d37); }

QColor barItemGround(bool current, bool hovered, bool pressed) {
    if (current) return either(0xffacc7f7, 0xff2f4f86);
    if (pressed) return either(0xffbcd2f8, 0xff2a4373);
    if (hovered) return either(0xffd0dffa, 0xff25334f);
    return Qt::transparent;
}

void paintBar(QWidget* bar, const QColor& ground, Qt::Edge end) {
    QPainter painter(bar);
    painter.fillRect(bar->rect(), ground);
    QRect line = bar->rect();
    if (end == Qt::RightEdge) line.setLeft(line.right());
    if (end == Qt::BottomEdge) line.setTop(line.bottom());
    if (end == Qt::TopEdge) line.setBottom(line.top());
    painter.fillRect(line, faintLine());
}

QColor mixed(const QColor& from, const QColor& to, double share) {
    const auto part = [share](float a, float b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()));
}

void setFaulty(QWidget* field, bool on) {
    if (isFaulty(field) == on) return;
    field->setProperty(faulty, on);
    field->update();
}

bool isFaulty(const QWidget* field) { return field && field->property(faulty).toBool(); }

void loadFonts(const QString& folder) {
    for (const QFileInfo& file : QDir(folder).entryInfoList({u"*.ttf"_s, u"*.otf"_s}, QDir::Files))
        QFontDatabase::addApplicationFont(file.filePath());
}

void apply(Mode mode) {
    currentMode = mode;
    loadGermanWords();
    QApplication::setStyle(new HouseStyle);
    QApplication::setPalette(palette());
    QToolTip::setPalette(palette());
    QApplication::setFont(bodyFont());
    QApplication::setWindowIcon(icon(u"uferwart"_s));
    QApplication::setKeyboardInputInterval(slowestTypingMilliseconds);
}

Mode desktopMode() {
    const QPalette palette = QApplication::palette();
    const bool darkWindow =
        palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
    return darkWindow ? Mode::Dark : Mode::Light;
}

} // namespace Theme
