#pragma once

#include <QObject>

/// Makes SIGTERM and SIGHUP end the application as the end of a desktop session does: a shutdown and a closed
/// Wayland session come as these signals. Create one before the event loop runs. A signal that is ignored
/// already, as SIGHUP under nohup, stays ignored.
class EndSignals : public QObject {
    Q_OBJECT

public:
    EndSignals();
    ~EndSignals() override;
};
