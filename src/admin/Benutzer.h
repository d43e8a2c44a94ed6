#pragma once

#include "Screen.h"

class Heading;

class Benutzer : public Screen {
    Q_OBJECT

public:
    Benutzer();

    Heading* Ueberschrift;
};
