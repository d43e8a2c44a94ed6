#include "OtherProgram.h"

#include <QApplication>
#include <QTimer>

void awaitOtherProgram() {
    constexpr int longestMilliseconds = 6000;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    auto* wait = new QObject(qApp);
    QTimer::singleShot(longestMilliseconds, wait, &QObject::deleteLater);
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, wait, [wait](auto state) {
        if (state != Qt::ApplicationActive) wait->deleteLater();
    });
    QObject::connect(wait, &QObject::destroyed, &QApplication::restoreOverrideCursor);
}
