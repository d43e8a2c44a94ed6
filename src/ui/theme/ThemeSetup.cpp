#include "ThemeSetup.h"

#include "HouseStyle.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QToolTip>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

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

void loadGermanWords(QApplication& application) {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString name = u"qtbase_de"_s;
    if (application.findChild<QTranslator*>(name)) return;
    auto* translator = new QTranslator(&application);
    translator->setObjectName(name);
    if (translator->load(name, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(translator);
}

} // namespace

namespace Theme {

void loadFonts(const QString& folder) {
    for (const QFileInfo& file : QDir(folder).entryInfoList({u"*.ttf"_s, u"*.otf"_s}, QDir::Files))
        QFontDatabase::addApplicationFont(file.filePath());
}

void apply(QApplication& application, Mode mode) {
    setMode(mode);
    loadGermanWords(application);
    QApplication::setStyle(new HouseStyle);
    QApplication::setPalette(palette());
    QToolTip::setPalette(palette());
    QApplication::setFont(bodyFont());
    QApplication::setWindowIcon(icon(u"uferwart"_s));
    QApplication::setKeyboardInputInterval(slowestTypingMilliseconds);
}

Mode desktopMode(const QApplication& /*application*/) {
    const QPalette palette = QApplication::palette();
    const bool darkWindow =
        palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
    return darkWindow ? Mode::Dark : Mode::Light;
}

} // namespace Theme
