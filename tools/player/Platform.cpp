#include "Platform.h"

#include "Theme.h"

#include <QApplication>
#include <QHashSeed>

using namespace Qt::StringLiterals;

namespace Platform {

void settleEnvironment() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (platform.isEmpty() || platform == "offscreen")
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" UW_PLAYER_SCREEN);
    // Only Qt's own event loop reports when it has nothing left to do.
    qputenv("QT_NO_GLIB", "1");
    qputenv("TZ", "UTC");
    QHashSeed::setDeterministicGlobalSeed();
}

void settleApplication(Theme::Mode mode) {
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0);
    for (const Qt::UIEffect effect : {Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo,
                                      Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox})
        QApplication::setEffectEnabled(effect, false);
    Theme::apply(mode);
}

bool isUsual(const QString& message) {
    return message.startsWith(u"This plugin does not support"_s) ||
           message.startsWith(u"QStandardPaths: XDG_RUNTIME_DIR"_s);
}

} // namespace Platform
