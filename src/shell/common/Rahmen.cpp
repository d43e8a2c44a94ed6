#include "Rahmen.h"

namespace {
Rahmen* current = nullptr;
}

Rahmen* rahmen() { return current; }

void setRahmen(Rahmen* frame) { current = frame; }
