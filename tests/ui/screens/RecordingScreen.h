#pragma once

#include "Screen.h"

#include <QStringList>
#include <functional>

using namespace Qt::StringLiterals;

/// Logs its events. Several screens share a log, so that it shows their order.
class RecordingScreen : public Screen {
public:
    RecordingScreen(const QString& name, QStringList& log)
        : Screen(name, name)
        , m_log(log) {}

    void Form_Activate() override { note(u"+"_s, onActivate); }
    void Form_Deactivate() override { note(u"-"_s, onDeactivate); }
    void Form_Paint() override { ++paints; }
    bool Form_KeyDown(int key, Qt::KeyboardModifiers) override {
        keys.append(key);
        return key == swallowed;
    }

    std::function<void()> onActivate;
    std::function<void()> onDeactivate;
    QList<int> keys;
    int swallowed = 0;
    int paints = 0;

private:
    void note(const QString& event, const std::function<void()>& handler) {
        m_log.append(event + objectName());
        if (handler) handler();
    }

    QStringList& m_log;
};
