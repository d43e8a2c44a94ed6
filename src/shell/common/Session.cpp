#include "Session.h"

namespace {
QString folder;
}

Session& session() {
    static Session values;
    return values;
}

const QString& programFolder() { return folder; }

void beginSession(const QString& programFolder) {
    session() = {};
    folder = programFolder;
}
