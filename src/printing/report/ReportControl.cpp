#include "ReportControl.h"

#include "RuntimeError.h"

ReportControl::ReportControl(Kind kind, const QString& name, const QRect& place)
    : m_kind(kind)
    , m_place(place)
    , m_name(name) {}

ReportControl& ReportControl::points(double size) {
    m_points = size;
    return *this;
}

ReportControl& ReportControl::bold() {
    m_bold = true;
    return *this;
}

ReportControl& ReportControl::align(Align align) {
    m_align = align;
    return *this;
}

ReportControl& ReportControl::format(const QString& pattern) {
    m_format = pattern;
    return *this;
}

ReportControl& ReportControl::wrapped() {
    m_wrapped = true;
    return *this;
}

ReportControl& ReportControl::growing(double least) {
    m_wrapped = true;
    m_leastPoints = least;
    return *this;
}

ReportControl& ReportControl::withPageNumbers() {
    m_pageNumbers = true;
    return *this;
}

ReportControl& ReportControl::ground(QRgb colour) {
    m_ground = colour;
    return *this;
}

ReportControl& ReportControl::ink(QRgb colour) {
    m_ink = colour;
    return *this;
}

ReportControl& ReportControl::lineWidth(int tenths) {
    m_lineWidth = tenths;
    return *this;
}

ReportControl& ReportControl::closing(QRgb ink) {
    m_closingInk = ink;
    return *this;
}

void ReportControl::setCaption(const QString& caption) {
    if (m_kind != Kind::Label) throw runtimeError(RuntimeError::noSuchProperty);
    m_caption = caption;
}

void ReportControl::setDataField(const QString& field) {
    if (m_kind != Kind::Text && m_kind != Kind::Sum) throw runtimeError(RuntimeError::noSuchProperty);
    m_dataField = field;
}
