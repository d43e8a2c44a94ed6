#include "modSysInfo.h"

#include "MsgBox.h"

#include <QProcess>
#include <QStandardPaths>

namespace modSysInfo {

namespace {

struct Tool {
    QString program;
    QStringList arguments;
};

/// Where desktops keep what they tell about the machine, the settings programs' own pages first.
QVector<Tool> placesToLook() {
    return {{u"gnome-control-center"_qs, {u"system"_qs, u"about"_qs}},
            {u"kinfocenter"_qs, {}},
            {u"xfce4-about"_qs, {}},
            {u"cinnamon-settings"_qs, {u"info"_qs}},
            {u"mate-system-monitor"_qs, {}},
            {u"hardinfo2"_qs, {}},
            {u"hardinfo"_qs, {}},
            {u"msinfo32"_qs, {}}};
}

} // namespace

void StartSysInfo() {
    for (const Tool& tool : placesToLook()) {
        const QString path = QStandardPaths::findExecutable(tool.program);
        if (!path.isEmpty() && QProcess::startDetached(path, tool.arguments)) return;
    }
    MsgBox(u"System Information Is Unavailable At This Time"_qs);
}

} // namespace modSysInfo
