#pragma once

#include <QRect>
#include <QRgb>
#include <QString>

/// A control of a report section: a fixed label, a text bound to a field, a sum over all detail rows, a rule
/// or a frame. Places are in tenths of a millimetre from the section's top left corner. A text too wide for
/// its place ends in an ellipsis; a number too wide gets smaller letters.
class ReportControl {
public:
    enum class Kind { Label, Text, Sum, Line, Shape };
    enum class Align { Left, Centre, Right };
    static constexpr int usualLineWidth = 2;

    ReportControl(Kind kind, const QString& name, const QRect& place);

    // The look of the control. Each call returns the control, so that calls can be chained.
    ReportControl& points(double size); ///< height of the letters in points; 9 unless set
    ReportControl& bold();
    ReportControl& align(Align align);
    /// Sets a pattern for Format(). Without one the value shows as CStr gives it.
    ReportControl& format(const QString& pattern);
    /// Lets a label break its text into as many lines as its place holds.
    ReportControl& wrapped();
    /// Never cuts the text of a label: its letters shrink down to `least` points, then it takes more lines
    /// than its place has, and the controls below it in the section move down.
    ReportControl& growing(double least);
    /// Lets a label replace %p by the page number, %P by the number of pages and %d by the day of printing.
    /// Other labels keep these characters, since a user may have typed them.
    ReportControl& withPageNumbers();
    /// Sets the ground of a shape. Without one it is a bare frame.
    ReportControl& ground(QRgb colour);
    /// Sets the colour of a line, of a shape's border or of the letters. Black unless set.
    ReportControl& ink(QRgb colour);
    /// Sets the width of a line or of a shape's border in tenths of a millimetre, 2 unless set; 0 for none.
    ReportControl& lineWidth(int tenths);
    /// Sets the colour of a line below each row for the last row of a page. There the line has the usual
    /// width.
    ReportControl& closing(QRgb ink);

    Kind kind() const { return m_kind; }
    const QString& name() const { return m_name; }
    const QRect& place() const { return m_place; }
    double points() const { return m_points; }
    bool isBold() const { return m_bold; }
    Align align() const { return m_align; }
    const QString& format() const { return m_format; }
    bool isWrapped() const { return m_wrapped; }
    bool isGrowing() const { return m_leastPoints > 0; }
    double leastPoints() const { return m_leastPoints; }
    bool hasPageNumbers() const { return m_pageNumbers; }
    QRgb ground() const { return m_ground; } ///< transparent for none
    QRgb ink() const { return m_ink; }
    int lineWidth() const { return m_lineWidth; }
    QRgb closingInk() const { return m_closingInk; } ///< transparent for none

    /// Sets the text of a label, which stays until it is set again. Error 438 for other controls.
    void setCaption(const QString& caption);
    const QString& caption() const { return m_caption; }
    /// Sets the field that a text or a sum shows, regardless of case; empty for none. Error 438 for other
    /// controls.
    void setDataField(const QString& field);
    const QString& dataField() const { return m_dataField; }
    void moveDown(int tenths) { m_place.translate(0, tenths); }
    void stretch(int tenths) { m_place.setHeight(m_place.height() + tenths); }
    void setVisible(bool visible) { m_visible = visible; }
    bool isVisible() const { return m_visible; }

private:
    Kind m_kind;
    Align m_align = Align::Left;
    bool m_bold = false;
    bool m_wrapped = false;
    bool m_pageNumbers = false;
    bool m_visible = true;
    QRgb m_ground = 0;
    QRgb m_ink = 0xff000000;
    QRgb m_closingInk = 0;
    int m_lineWidth = usualLineWidth;
    double m_points = 9;
    double m_leastPoints = 0; ///< 0 for a label that does not grow
    QRect m_place;
    QString m_name;
    QString m_format;
    QString m_caption;
    QString m_dataField;
};
