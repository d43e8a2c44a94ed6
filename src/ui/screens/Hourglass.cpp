#include "Hourglass.h"

#include "Screen.h"

Hourglass::Hourglass(Screen& shown)
    : m_screen(&shown) {
    shown.setHourglass(true);
}

void Hourglass::end() {
    if (m_screen) m_screen->setHourglass(false);
    m_screen.clear();
}
