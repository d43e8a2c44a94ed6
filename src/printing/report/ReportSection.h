#pragma once

#include "ReportControl.h"

#include <deque>

/// A band across the page with its controls, in the order in which they are painted.
class ReportSection {
public:
    explicit ReportSection(const QString& name)
        : m_name(name) {}

    const QString& name() const { return m_name; }
    int height() const { return m_height; } ///< tenths of a millimetre
    void setHeight(int tenths) { m_height = tenths; }

    // Adding a control returns it, to be told how it looks. It stays where it is when others are added.
    ReportControl& addLabel(const QString& name, const QString& caption, const QRect& place);
    ReportControl& addText(const QString& name, const QRect& place);
    ReportControl& addSum(const QString& name, const QRect& place);
    /// Along the top of its place, or along its left side if that is longer.
    ReportControl& addLine(const QString& name, const QRect& place);
    ReportControl& addShape(const QString& name, const QRect& place);

    /// By name, without regard to case; error 3265 if there is none.
    ReportControl& control(const QString& name);
    const std::deque<ReportControl>& controls() const { return m_controls; }
    /// Makes the control of this number so much higher, with letters of this size. Those below it move down.
    void grow(std::size_t control, double points, int tenths);

private:
    ReportControl& add(ReportControl::Kind kind, const QString& name, const QRect& place);

    QString m_name;
    int m_height = 0;
    std::deque<ReportControl> m_controls;
};
