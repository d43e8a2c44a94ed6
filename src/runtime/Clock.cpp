#include "Clock.h"

namespace {

const Clock& systemClock() {
    static const SystemClock clock;
    return clock;
}

const Clock* clockInForce = nullptr;

} // namespace

void setClock(const Clock* clock) { clockInForce = clock; }

QDateTime now() { return (clockInForce ? *clockInForce : systemClock()).now(); }
