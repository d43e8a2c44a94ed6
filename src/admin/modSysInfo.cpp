#include "modSysInfo.h"

#include "MsgBox.h"

#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace modSysInfo {

namespace {

/// A program that shows information about the computer.
struct Tool {
    QString program;
    QStringList arguments;
    /// The .desktop file that an installed release has if it knows the page in `arguments`. Releases name the
    /// page differently. Empty: every release knows the arguments.
    QString page{};
};

/// The programs of the common desktops, in the order of preference: pages of the settings programs first.
QVector<Tool> placesToLook() {
    const QString gnome = u"gnome-control-center"_s;
    return {{gnome, {u"info-overview"_s}, u"gnome-info-overview-panel.desktop"_s},
            {gnome, {u"system"_s, u"about"_s}, u"gnome-system-panel.desktop"_s},
            {gnome, {u"about"_s}, u"gnome-about-panel.desktop"_s},
            {u"kinfocenter"_s, {}},
            {u"cinnamon-settings"_s, {u"info"_s}},
            {u"mate-system-monitor"_s, {u"--show-system-tab"_s}},
            {u"xfce4-about"_s, {}},
            {u"lxqt-about"_s, {}},
            {u"hardinfo2"_s, {}},
            {u"hardinfo"_s, {}},
            {u"msinfo32"_s, {}}};
}

} // namespace

void StartSysInfo() {
    for (const Tool& tool : placesToLook()) {
        const QString path = QStandardPaths::findExecutable(tool.program);
        const bool known = tool.page.isEmpty() ||
                           !QStandardPaths::locate(QStandardPaths::ApplicationsLocation, tool.page).isEmpty();
        if (!path.isEmpty() && known && QProcess::startDetached(path, tool.arguments)) return;
    }
    MsgBox(u"System Information Is Unavailable At This Time"_s);
}

} // namespace modSysInfo
