#pragma once

#include "Screen.h"

class Heading;

class Besatzung : public Screen {
    Q_OBJECT

public:
    Besatzung();

    Heading* Ueberschrift;
};
