#pragma once

#include "Layout.h"
#include "Screen.h"

/// A background picture. No routine shows it.
class Hinter : public Screen {
    Q_OBJECT

public:
    Hinter();

    QLabel* const Picture1 = Layout::picture(u"Picture1", u"hinter", {480, 300}, this);
};
