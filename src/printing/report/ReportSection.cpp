#include "ReportSection.h"

#include "RuntimeError.h"

ReportControl& ReportSection::addLabel(const QString& name, const QString& caption, const QRect& place) {
    ReportControl& label = add(ReportControl::Kind::Label, name, place);
    label.setCaption(caption);
    return label;
}

ReportControl& ReportSection::addText(const QString& name, const QRect& place) {
    return add(ReportControl::Kind::Text, name, place);
}

ReportControl& ReportSection::addSum(const QString& name, const QRect& place) {
    return add(ReportControl::Kind::Sum, name, place);
}

ReportControl& ReportSection::addLine(const QString& name, const QRect& place) {
    return add(ReportControl::Kind::Line, name, place);
}

ReportControl& ReportSection::addShape(const QString& name, const QRect& place) {
    return add(ReportControl::Kind::Shape, name, place);
}

ReportControl& ReportSection::control(const QString& name) {
    const QString folded = name.toCaseFolded();
    for (ReportControl& control : m_controls) {
        if (control.name().toCaseFolded() == folded) return control;
    }
    throw runtimeError(RuntimeError::itemNotFound, name);
}

void ReportSection::grow(std::size_t number, double points, int tenths) {
    const int bottom = m_controls[number].place().bottom();
    m_controls[number].points(points).stretch(tenths);
    for (ReportControl& control : m_controls) {
        if (control.place().top() > bottom) control.moveDown(tenths);
    }
    m_height += tenths;
}

ReportControl& ReportSection::add(ReportControl::Kind kind, const QString& name, const QRect& place) {
    return m_controls.emplace_back(kind, name, place);
}
