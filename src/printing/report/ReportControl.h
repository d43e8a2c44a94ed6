#pragma once

#include <QRect>
#include <QRgb>
#include <QString>

/// The look of a control.
struct ReportLook {
    enum class Align { Left, Centre, Right };

    double points = 9; ///< height of the letters
    bool bold = false;
    Align align = Align::Left;
    QString format = {}; ///< a pattern for Format(); without one a value shows as CStr gives it
    /// A label breaks its text into as many lines as its place holds.
    bool wrapped = false;
    /// Above 0, the text of a label is never cut: its letters shrink to this size, then it takes more lines
    /// than its place has, and the controls below it in the section move down.
    double leastPoints = 0;
    /// A label replaces %p by the page number, %P by the number of pages and %d by the day of printing. Other
    /// labels keep these characters, since a user may have typed them.
    bool pageNumbers = false;
    QRgb ink = 0xff000000; ///< of the letters, of a line or of a shape's border
    QRgb ground = 0;       ///< of a shape
    int lineWidth = 2;     ///< of a line or of a shape's border, in tenths of a millimetre
    /// The colour of a line below each row for the last row of a page, where it has the usual width; 0 for no
    /// other colour.
    QRgb closingInk = 0;
};

/// A control of a report section.
struct ReportControl {
    /// A fixed text, a field of the row, the sum of a field over all rows, a rule or a frame. A rule runs
    /// along the top of its place, or along the left side if that is longer.
    enum class Kind { Label, Text, Sum, Line, Shape };

    bool showsText() const { return kind < Kind::Line; }

    Kind kind;
    QString name;
    /// In tenths of a millimetre from the section's top left corner. A text too wide for it ends in an
    /// ellipsis; a number too wide gets smaller letters.
    QRect place;
    ReportLook look = {};
    QString caption = {};   ///< of a label
    QString dataField = {}; ///< of a text or a sum, regardless of case; empty for none
    int field = -1;         ///< number of `dataField` in the rows, set by ReportDocument
};
