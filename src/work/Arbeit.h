#pragma once

#include "Screen.h"

class Heading;

class Arbeit : public Screen {
    Q_OBJECT

public:
    Arbeit();

    Heading* Ueberschrift;
};
