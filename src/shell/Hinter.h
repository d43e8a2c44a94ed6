#pragma once

#include "Screen.h"

class QLabel;

/// A background picture. No routine shows it.
class Hinter : public Screen {
    Q_OBJECT

public:
    Hinter();

    QLabel* Picture1;
};
