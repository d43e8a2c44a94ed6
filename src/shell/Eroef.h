#pragma once

#include "Screen.h"

class ProgressBar;
class QLabel;

/// The start-up picture, shown while the data is loaded after login.
class Eroef : public Screen {
    Q_OBJECT

public:
    Eroef();

    QLabel* Picture1;
    ProgressBar* pb;
};
