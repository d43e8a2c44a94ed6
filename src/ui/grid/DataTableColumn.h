#pragma once

#include <QStringList>

/// A column of a grid. `width` is in pixels at 100 %; 0 hides the column. Columns of texts share surplus
/// width. If width is missing, each gives up to a third of its own, or all down to a `minimumWidth` other
/// than the usual one.
struct GridColumn {
    static constexpr int usualMinimum = 24;

    QString head;
    int width = 100;
    bool numeric = false; ///< right-aligned
    int minimumWidth = usualMinimum;
    bool picture = false; ///< the cell holds the path of a picture
    bool tick = false;    ///< a True shows as a tick, a False as nothing
    bool fixed = false;   ///< its texts are all of one length, such as dates: it gives and takes no room
    bool firm = false;    ///< such as telephone numbers: it takes room but gives none

    bool name = false;      ///< what is typed on the list is looked for here before all other columns
    QString headLines = {}; ///< the head as it is set on two lines, smaller, where the column is a narrow one
    QStringList order = {}; ///< where its words have an order of their own, such as months, for sorting by it

    /// As narrow as the grid makes it of its own accord.
    int narrowest() const {
        if (firm || tick) return width;
        return minimumWidth == usualMinimum ? width * 2 / 3 : minimumWidth;
    }

    friend bool operator==(const GridColumn&, const GridColumn&) = default;
};
