#pragma once

#include <QString>

/// Thrown by a command that can't be carried out.
struct CommandFailure {
    QString reason;
};
