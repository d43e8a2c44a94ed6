#pragma once

#include "Screen.h"

class Heading;

class Fangauswertung : public Screen {
    Q_OBJECT

public:
    Fangauswertung();

    Heading* Ueberschrift;
};
