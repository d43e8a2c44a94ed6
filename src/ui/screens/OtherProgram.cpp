#include "OtherProgram.h"

#include <QApplication>
#include <QTimer>

namespace {

constexpr int longestWaitMilliseconds = 6000;

class Wait : public QObject {
public:
    Wait()
        : QObject(qApp) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        QTimer::singleShot(longestWaitMilliseconds, this, &QObject::deleteLater);
        connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
            if (state != Qt::ApplicationActive) deleteLater();
        });
    }
    ~Wait() override { QApplication::restoreOverrideCursor(); }
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;
};

} // namespace

void awaitOtherProgram() { new Wait; }
