#pragma once

#include <QString>

/// A column of a grid. `width` is in pixels at 100 %, 0 hides the column; columns of texts share what room is
/// left, or give up to a third where it lacks.
struct GridColumn {
    QString head;
    int width = 100;
    bool numeric = false; ///< right-aligned
    int minimumWidth = 24;
    bool picture = false; ///< the cell holds the path of a picture
    bool fixed = false;   ///< its texts are all of one length, such as dates: it gives and takes no room

    friend bool operator==(const GridColumn&, const GridColumn&) = default;
};
