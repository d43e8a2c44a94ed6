#pragma once

#include "Layout.h"
#include "ProgressBar.h"
#include "Screen.h"

/// The start-up picture, shown while the data is loaded after login.
class Eroef : public Screen {
    Q_OBJECT

public:
    Eroef();

    QLabel* const Picture1 = Layout::picture(u"Picture1", u"eroef", {480, 300}, this);
    ProgressBar* const pb = new ProgressBar(u"pb", this);
};
