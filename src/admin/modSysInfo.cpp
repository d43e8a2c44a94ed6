#include "modSysInfo.h"

#include "MsgBox.h"

#include <QProcess>
#include <QStandardPaths>

namespace modSysInfo {

namespace {

/// A program that tells about the machine.
struct Tool {
    QString program;
    QStringList arguments;
    /// The desktop's entry for the page that the arguments name; releases name it differently.
    QString page{};
};

/// Where desktops keep what they tell about the machine, the settings programs' own pages first.
QVector<Tool> placesToLook() {
    const QString gnome = u"gnome-control-center"_qs;
    return {{gnome, {u"info-overview"_qs}, u"gnome-info-overview-panel.desktop"_qs},
            {gnome, {u"system"_qs, u"about"_qs}, u"gnome-system-panel.desktop"_qs},
            {gnome, {u"about"_qs}, u"gnome-about-panel.desktop"_qs},
            {u"kinfocenter"_qs, {}},
            {u"cinnamon-settings"_qs, {u"info"_qs}},
            {u"mate-system-monitor"_qs, {u"--show-system-tab"_qs}},
            {u"xfce4-about"_qs, {}},
            {u"lxqt-about"_qs, {}},
            {u"hardinfo2"_qs, {}},
            {u"hardinfo"_qs, {}},
            {u"msinfo32"_qs, {}}};
}

bool isThere(const QString& page) {
    return page.isEmpty() || !QStandardPaths::locate(QStandardPaths::ApplicationsLocation, page).isEmpty();
}

} // namespace

void StartSysInfo() {
    for (const Tool& tool : placesToLook()) {
        const QString path = QStandardPaths::findExecutable(tool.program);
        if (path.isEmpty() || !isThere(tool.page)) continue;
        if (QProcess::startDetached(path, tool.arguments)) return;
    }
    MsgBox(u"System Information Is Unavailable At This Time"_qs);
}

} // namespace modSysInfo
