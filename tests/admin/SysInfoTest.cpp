#include "MsgBox.h"
#include "modSysInfo.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>
#include <map>

namespace {

/// A desktop with nothing on it but what a test installs.
class SysInfo : public ::testing::Test, public MessageBoxes {
protected:
    SysInfo() {
        setMessageBoxes(this);
        QDir(desktop.path()).mkdir(u"applications"_qs);
        for (const char* name : {"PATH", "XDG_DATA_DIRS", "XDG_DATA_HOME"}) {
            m_before[name] = qgetenv(name);
            qputenv(name, QFile::encodeName(desktop.path()));
        }
    }
    ~SysInfo() override {
        for (const auto& [name, value] : m_before) qputenv(name, value);
        setMessageBoxes(nullptr);
    }

    MsgBoxResult show(const QString& text, int style, const QString& title) override {
        box = u"%1 %2: %3"_qs.arg(style).arg(title, text);
        return vbOK;
    }

    void install(const QString& name, const QByteArray& content) {
        QFile file(desktop.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    /// A program that writes down its own name and what it is told.
    void installTool(const QString& name) {
        install(name, "#!/bin/sh\necho \"${0##*/} $*\" >\"${0%/*}/new\" && exec /bin/mv \"${0%/*}/new\" "
                      "\"${0%/*}/started\"\n");
    }
    QString started() {
        QFile file(desktop.filePath(u"started"_qs));
        for (int tries = 0; tries < 500 && !file.exists(); ++tries) QThread::msleep(10);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : QString();
    }

    QTemporaryDir desktop;
    QString box;

private:
    std::map<const char*, QByteArray> m_before;
};

TEST_F(SysInfo, SaysSoWhereThereIsNoTool) {
    modSysInfo::StartSysInfo();
    EXPECT_EQ(box, u"0 Uferwart: System Information Is Unavailable At This Time"_qs);
}

TEST_F(SysInfo, OpensThePageThatTheSettingsProgramHas) {
    installTool(u"hardinfo"_qs);
    installTool(u"gnome-control-center"_qs);
    install(u"applications/gnome-system-panel.desktop"_qs, "[Desktop Entry]\n");
    modSysInfo::StartSysInfo();
    EXPECT_EQ(started(), u"gnome-control-center system about"_qs);
    EXPECT_EQ(box, QString());
}

TEST_F(SysInfo, PassesOverASettingsProgramWithoutSuchAPage) {
    installTool(u"hardinfo"_qs);
    installTool(u"gnome-control-center"_qs);
    modSysInfo::StartSysInfo();
    EXPECT_EQ(started(), u"hardinfo"_qs);
}

} // namespace
