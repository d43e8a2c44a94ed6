#include "Session.h"

namespace {

struct State {
    Session values;
    QString folder;
};

State& state() {
    static State one;
    return one;
}

} // namespace

Session& session() { return state().values; }

const QString& programFolder() { return state().folder; }

void beginSession(const QString& folder) {
    state().values = Session{};
    state().folder = folder;
}
