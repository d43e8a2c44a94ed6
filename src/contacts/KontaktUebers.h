#pragma once

#include "Screen.h"

class Heading;
class Toolbar;

class KontaktUebers : public Screen {
    Q_OBJECT

public:
    KontaktUebers();

    Heading* Ueberschrift;
    Toolbar* Toolbar1;
};
