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

    // Each function returns the new control, so that its look can be set. The reference stays valid when more
    // controls are added.
    ReportControl& addLabel(const QString& name, const QString& caption, const QRect& place);
    ReportControl& addText(const QString& name, const QRect& place);
    ReportControl& addSum(const QString& name, const QRect& place);
    /// Adds a line along the top of its place, or along the left side if that is longer.
    ReportControl& addLine(const QString& name, const QRect& place);
    ReportControl& addShape(const QString& name, const QRect& place);

    /// The control of this name, regardless of case; error 3265 if there is none.
    ReportControl& control(const QString& name);
    const std::deque<ReportControl>& controls() const { return m_controls; }
    /// Makes a control higher by `tenths`, with letters of `points`. The controls below it move down.
    /// `control` is its number in controls().
    void grow(std::size_t control, double points, int tenths);

private:
    ReportControl& add(ReportControl::Kind kind, const QString& name, const QRect& place);

    QString m_name;
    int m_height = 0;
    std::deque<ReportControl> m_controls;
};
