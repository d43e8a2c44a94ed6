#pragma once

#include <QObject>

/// SIGTERM and SIGHUP end the application as the desktop does: a shutdown and a closed Wayland session come
/// as these signals. Make one before the event loop runs. A signal that is ignored already, as SIGHUP under
/// nohup, stays ignored. Does nothing where there are no such signals.
class EndSignals : public QObject {
    Q_OBJECT

public:
    EndSignals();
    ~EndSignals() override;
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;
};
