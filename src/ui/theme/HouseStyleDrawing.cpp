#include "HouseStyle.h"

#include "Theme.h"

#include <QAbstractScrollArea>
#include <QLabel>
#include <QPainter>
#include <QStyleOption>
#include <QToolButton>

namespace {

constexpr double corner = 4;
constexpr double ringWidth = 2;
constexpr int scrollInset = 3;

template<typename Option>
const Option* as(const QStyleOption* option) {
    return qstyleoption_cast<const Option*>(option);
}

bool has(const QStyleOption* option, QStyle::StateFlag flag) { return option->state.testFlag(flag); }
bool enabled(const QStyleOption* option) { return has(option, QStyle::State_Enabled); }
bool focused(const QStyleOption* option) { return enabled(option) && has(option, QStyle::State_HasFocus); }
bool hovered(const QStyleOption* option) { return enabled(option) && has(option, QStyle::State_MouseOver); }
bool pressed(const QStyleOption* option) { return has(option, QStyle::State_Sunken); }
bool checked(const QStyleOption* option) { return has(option, QStyle::State_On); }
QColor colour(const QStyleOption* option, QPalette::ColorRole role) { return option->palette.color(role); }

// A pen draws on both sides of its line. The inset keeps the line within the rectangle.
void rounded(QPainter* painter, const QRectF& place, const QColor& line, double width, const QBrush& ground,
             double radius = corner) {
    const double inset = width / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(width > 0 ? QPen(line, width) : QPen(Qt::NoPen));
    painter->setBrush(ground);
    painter->drawRoundedRect(place.adjusted(inset, inset, -inset, -inset), radius, radius);
    painter->restore();
}

void filled(QPainter* painter, const QRectF& place, const QColor& ground, double radius) {
    rounded(painter, place, {}, 0, ground, radius);
}

void polyline(QPainter* painter, const QPolygonF& line, const QColor& ink, double width) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPolyline(line);
    painter->restore();
}

QColor borderOf(const QStyleOption* option) {
    if (!enabled(option)) return Theme::faintLine();
    if (focused(option) || hovered(option)) return Theme::accent();
    return Theme::outline();
}

double borderWidth(const QStyleOption* option) { return focused(option) ? ringWidth : 1; }

// Ground and border of a value that cannot be edited.
void sunkenPanel(const QStyleOption* option, QPainter* painter) {
    rounded(painter, option->rect, Theme::faintLine(), 1, colour(option, QPalette::Midlight));
}

// The ground and border of a text box, a combo box and their like; the border is the focus ring as well, or
// tells that the text can't be right. What can't be written in has the ground of a value that only shows.
void field(const QStyleOption* option, QPainter* painter, const QWidget* widget) {
    const bool locked = !enabled(option) || has(option, QStyle::State_ReadOnly);
    if (locked && !focused(option)) return sunkenPanel(option, painter);
    const bool faulty = Theme::isFaulty(widget);
    rounded(painter, option->rect, faulty ? Theme::fault() : borderOf(option),
            faulty ? ringWidth : borderWidth(option),
            colour(option, locked ? QPalette::Midlight : QPalette::Base));
}

void pushButton(const QStyleOption* option, QPainter* painter) {
    QColor ground = colour(option, enabled(option) ? QPalette::Button : QPalette::Window);
    if (pressed(option))
        ground = Theme::mixed(ground, Theme::accent(), 0.3);
    else if (hovered(option))
        ground = Theme::mixed(ground, Theme::accent(), 0.12);
    const auto* button = as<QStyleOptionButton>(option);
    const bool isDefault = button && button->features.testFlag(QStyleOptionButton::DefaultButton);
    rounded(painter, option->rect, enabled(option) && isDefault ? Theme::accent() : borderOf(option),
            borderWidth(option), ground);
}

void toolButton(const QStyleOption* option, QPainter* painter) {
    const bool down = pressed(option) || checked(option);
    if (!enabled(option) || (!down && !hovered(option) && !focused(option))) return;
    rounded(painter, option->rect, Theme::accent(), focused(option) ? ringWidth : 0,
            Theme::mixed(colour(option, QPalette::Window), Theme::accent(), down ? 0.32 : 0.16));
}

// Around a toolbar button as a whole. Qt's own focus rectangle runs through the icon.
void focusRing(const QStyleOption* option, QPainter* painter, const QWidget* widget) {
    const bool key = qobject_cast<const QToolButton*>(widget);
    rounded(painter, key ? widget->rect().adjusted(1, 1, -1, -1) : option->rect, Theme::accent(), 1.5,
            Qt::NoBrush, corner / 2);
}

// The box of a check box or the circle of an option.
void mark(const QStyleOption* option, QPainter* painter, double radius) {
    const bool on = checked(option);
    QColor ground = colour(option, QPalette::Base);
    if (!enabled(option))
        ground = on ? Theme::outline() : colour(option, QPalette::Window);
    else if (on)
        ground = colour(option, QPalette::Highlight);
    else if (pressed(option))
        ground = Theme::mixed(ground, Theme::blue(), 0.4);
    rounded(painter, option->rect, on && !focused(option) ? ground : borderOf(option), borderWidth(option),
            ground, radius);
}

void checkBox(const QStyleOption* option, QPainter* painter) {
    mark(option, painter, 3);
    if (!checked(option)) return;
    const QRectF place = option->rect;
    const auto at = [&](double x, double y) {
        return QPointF(place.left() + x * place.width(), place.top() + y * place.height());
    };
    polyline(painter, {at(0.25, 0.52), at(0.43, 0.7), at(0.76, 0.32)}, Qt::white, place.width() / 8);
}

void radioButton(const QStyleOption* option, QPainter* painter) {
    const QRectF place = option->rect;
    mark(option, painter, place.width() / 2);
    if (!checked(option)) return;
    const double reach = place.width() / 5;
    const QPointF centre = place.center();
    filled(painter, QRectF(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach), Qt::white, reach);
}

void chevron(const QRectF& place, Qt::ArrowType direction, const QStyleOption* option, QPainter* painter) {
    const auto group = enabled(option) ? QPalette::Active : QPalette::Disabled;
    const double half = 4;
    const double rise = direction == Qt::UpArrow ? -half / 2 : half / 2;
    const QPointF centre = place.center();
    polyline(painter,
             {centre + QPointF(-half, -rise), centre + QPointF(0, rise), centre + QPointF(half, -rise)},
             option->palette.color(group, QPalette::Text), 1.5);
}

void tab(const QStyleOption* option, QPainter* painter) {
    const QRectF place = option->rect;
    const bool selected = has(option, QStyle::State_Selected);
    if (hovered(option) && !selected)
        filled(painter, place.adjusted(1, 2, -1, -2),
               Theme::mixed(colour(option, QPalette::Window), Theme::accent(), 0.12), corner);
    if (focused(option)) rounded(painter, place.adjusted(2, 3, -2, -5), Theme::accent(), 1.5, Qt::NoBrush);
    if (selected)
        filled(painter, QRectF(place.left() + 8, place.bottom() - 3, place.width() - 16, 3), Theme::accent(),
               1.5);
}

void framePanel(const QRectF& place, QPainter* painter) {
    rounded(painter, place, Theme::faintLine(), 1, Qt::NoBrush, 6);
}

void progress(const QStyleOptionProgressBar* bar, QPainter* painter) {
    QRectF room = QRectF(bar->rect).adjusted(2, 2, -2, -2);
    const double part = double(bar->progress - bar->minimum) / std::max(1, bar->maximum - bar->minimum);
    if (part <= 0) return;
    room.setWidth(room.width() * std::min(1.0, part));
    const bool dark = Theme::mode() == Theme::Mode::Dark;
    filled(painter, room, dark ? colour(bar, QPalette::Highlight) : Theme::blue(), corner - 1);
}

// The figure crosses the filled and the empty part in one ink, which is legible on both.
void progressLabel(const QStyleOptionProgressBar* bar, QPainter* painter) {
    painter->save();
    painter->setPen(colour(bar, QPalette::Text));
    painter->drawText(bar->rect, Qt::AlignCenter, bar->text);
    painter->restore();
}

} // namespace

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    switch (element) {
    case PE_PanelLineEdit: {
        const auto* frame = as<QStyleOptionFrame>(option);
        if (frame && frame->lineWidth > 0) field(option, painter, widget);
        return;
    }
    case PE_Frame:
        // An area paints its own ground.
        if (qobject_cast<const QAbstractScrollArea*>(widget))
            return rounded(painter, option->rect, borderOf(option), borderWidth(option), Qt::NoBrush);
        if (qobject_cast<const QLabel*>(widget)) return sunkenPanel(option, painter);
        break;
    case PE_PanelButtonCommand:
        return pushButton(option, painter);
    case PE_FrameDefaultButton:
        return;
    case PE_PanelButtonTool:
        return toolButton(option, painter);
    case PE_FrameFocusRect:
        return focusRing(option, painter, widget);
    case PE_IndicatorCheckBox:
        return checkBox(option, painter);
    case PE_IndicatorRadioButton:
        return radioButton(option, painter);
    case PE_FrameTabWidget:
        return framePanel(option->rect, painter);
    case PE_FrameTabBarBase:
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    if (element == CE_TabBarTabShape) return tab(option, painter);
    const auto* combo = as<QStyleOptionComboBox>(option);
    if (combo && element == CE_ComboBoxLabel && !combo->editable) return drawEntry(combo, painter, widget);
    if (const auto* bar = as<QStyleOptionProgressBar>(option)) {
        if (element == CE_ProgressBarGroove)
            return rounded(painter, option->rect, Theme::outline(), 1, colour(option, QPalette::Base));
        if (element == CE_ProgressBarContents) return progress(bar, painter);
        if (element == CE_ProgressBarLabel) return progressLabel(bar, painter);
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

// Qt would cut an entry that is too long in the middle of a letter.
void HouseStyle::drawEntry(const QStyleOptionComboBox* option, QPainter* painter,
                           const QWidget* widget) const {
    QStyleOptionComboBox shown = *option;
    const int room = subControlRect(CC_ComboBox, option, SC_ComboBoxEditField, widget).width() - 2;
    shown.currentText = option->fontMetrics.elidedText(option->currentText, Qt::ElideRight, room);
    QProxyStyle::drawControl(CE_ComboBoxLabel, &shown, painter, widget);
}

void HouseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    switch (control) {
    case CC_ComboBox:
        field(option, painter, widget);
        return chevron(subControlRect(control, option, SC_ComboBoxArrow, widget), Qt::DownArrow, option,
                       painter);
    case CC_GroupBox:
        return drawGroupBox(option, painter, widget);
    case CC_SpinBox:
        return drawSpinBox(option, painter, widget);
    case CC_ScrollBar:
        return drawScrollBar(option, painter, widget);
    default:
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

void HouseStyle::drawGroupBox(const QStyleOptionComplex* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* box = as<QStyleOptionGroupBox>(option);
    if (!box || (box->subControls & SC_GroupBoxCheckBox))
        return QProxyStyle::drawComplexControl(CC_GroupBox, option, painter, widget);
    framePanel(option->rect, painter);
    if (box->text.isEmpty()) return;
    painter->save();
    QFont font = painter->font();
    font.setBold(true);
    painter->setFont(font);
    painter->setPen(enabled(option) ? Theme::headingInk()
                                    : option->palette.color(QPalette::Disabled, QPalette::WindowText));
    painter->drawText(QRect(groupLabel, option->rect.size()),
                      Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic, box->text);
    painter->restore();
}

void HouseStyle::drawSpinBox(const QStyleOptionComplex* option, QPainter* painter,
                             const QWidget* widget) const {
    field(option, painter, widget);
    const auto* box = as<QStyleOptionSpinBox>(option);
    if (!box || box->buttonSymbols == QAbstractSpinBox::NoButtons) return;
    chevron(subControlRect(CC_SpinBox, option, SC_SpinBoxUp, widget), Qt::UpArrow, option, painter);
    chevron(subControlRect(CC_SpinBox, option, SC_SpinBoxDown, widget), Qt::DownArrow, option, painter);
}

void HouseStyle::drawScrollBar(const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* bar = as<QStyleOptionSlider>(option);
    if (!bar) return;
    // Covers the handle at its last place.
    painter->fillRect(bar->rect, colour(bar, QPalette::Window));
    if (bar->maximum <= bar->minimum) return;
    const QRectF handle = QRectF(subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget))
                              .adjusted(scrollInset, scrollInset, -scrollInset, -scrollInset);
    QColor ground = Theme::mixed(colour(bar, QPalette::Window), colour(bar, QPalette::Dark), 0.65);
    if (hovered(bar)) ground = Theme::outline();
    if (pressed(bar) && bar->activeSubControls.testFlag(SC_ScrollBarSlider)) ground = Theme::accent();
    filled(painter, handle, ground, std::min(handle.width(), handle.height()) / 2);
}
