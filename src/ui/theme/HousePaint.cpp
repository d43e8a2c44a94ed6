#include "HousePaint.h"

#include "Theme.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr double corner = 4;
constexpr double ringWidth = 2;

bool has(const QStyleOption* option, QStyle::StateFlag flag) { return option->state.testFlag(flag); }
bool enabled(const QStyleOption* option) { return has(option, QStyle::State_Enabled); }
bool focused(const QStyleOption* option) { return enabled(option) && has(option, QStyle::State_HasFocus); }
bool hovered(const QStyleOption* option) { return enabled(option) && has(option, QStyle::State_MouseOver); }
bool pressed(const QStyleOption* option) { return has(option, QStyle::State_Sunken); }
bool checked(const QStyleOption* option) { return has(option, QStyle::State_On); }

class PainterState {
public:
    explicit PainterState(QPainter* painter)
        : m_painter(painter) {
        m_painter->save();
        m_painter->setRenderHint(QPainter::Antialiasing);
    }
    ~PainterState() { m_painter->restore(); }
    PainterState(const PainterState&) = delete;
    PainterState& operator=(const PainterState&) = delete;

private:
    QPainter* m_painter;
};

// A pen draws on both sides of its line. The inset keeps the line within the rectangle.
void rounded(QPainter* painter, const QRectF& place, const QColor& line, double width, const QBrush& ground,
             double radius = corner) {
    const double inset = width / 2;
    painter->setPen(width > 0 ? QPen(line, width) : QPen(Qt::NoPen));
    painter->setBrush(ground);
    painter->drawRoundedRect(place.adjusted(inset, inset, -inset, -inset), radius, radius);
}

QColor borderOf(const QStyleOption* option) {
    if (!enabled(option)) return Theme::faintLine();
    if (focused(option) || hovered(option)) return Theme::accent();
    return Theme::outline();
}

double borderWidth(const QStyleOption* option) { return focused(option) ? ringWidth : 1; }

void tick(const QRectF& place, const QColor& ink, QPainter* painter) {
    painter->setPen(QPen(ink, place.width() / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    const auto at = [&](double x, double y) {
        return QPointF(place.left() + x * place.width(), place.top() + y * place.height());
    };
    painter->drawPolyline(QPolygonF({at(0.25, 0.52), at(0.43, 0.7), at(0.76, 0.32)}));
}

QColor markGround(const QStyleOption* option) {
    if (!enabled(option)) return checked(option) ? Theme::outline() : option->palette.color(QPalette::Window);
    if (checked(option)) return option->palette.color(QPalette::Highlight);
    const QColor base = option->palette.color(QPalette::Base);
    return pressed(option) ? Theme::mixed(base, Theme::blue(), 0.4) : base;
}

QColor markBorder(const QStyleOption* option) {
    if (checked(option)) return focused(option) ? Theme::accent() : markGround(option);
    return borderOf(option);
}

} // namespace

namespace HousePaint {

void field(const QStyleOption* option, QPainter* painter, bool faulty) {
    const bool locked = !enabled(option) || has(option, QStyle::State_ReadOnly);
    if (locked && !focused(option)) return sunkenPanel(option, painter);
    const PainterState state(painter);
    rounded(painter, option->rect, faulty ? Theme::fault() : borderOf(option),
            faulty ? ringWidth : borderWidth(option),
            option->palette.color(locked ? QPalette::Midlight : QPalette::Base));
}

void fieldBorder(const QStyleOption* option, QPainter* painter) {
    const PainterState state(painter);
    rounded(painter, option->rect, borderOf(option), borderWidth(option), Qt::NoBrush);
}

void sunkenPanel(const QStyleOption* option, QPainter* painter) {
    const PainterState state(painter);
    rounded(painter, option->rect, Theme::faintLine(), 1, option->palette.color(QPalette::Midlight));
}

void pushButton(const QStyleOption* option, QPainter* painter, bool isDefault) {
    const PainterState state(painter);
    QColor ground = option->palette.color(enabled(option) ? QPalette::Button : QPalette::Window);
    if (pressed(option))
        ground = Theme::mixed(ground, Theme::accent(), 0.3);
    else if (hovered(option))
        ground = Theme::mixed(ground, Theme::accent(), 0.12);
    const bool accented = enabled(option) && isDefault;
    rounded(painter, option->rect, accented ? Theme::accent() : borderOf(option), borderWidth(option),
            ground);
}

void toolButton(const QStyleOption* option, QPainter* painter) {
    if (!enabled(option)) return;
    const bool down = pressed(option) || checked(option);
    if (!down && !hovered(option) && !focused(option)) return;
    const PainterState state(painter);
    const QColor ground =
        Theme::mixed(option->palette.color(QPalette::Window), Theme::accent(), down ? 0.32 : 0.16);
    rounded(painter, option->rect, Theme::accent(), focused(option) ? ringWidth : 0, ground);
}

void focusRing(const QStyleOption* option, QPainter* painter) {
    const PainterState state(painter);
    rounded(painter, option->rect, Theme::accent(), 1.5, Qt::NoBrush, corner / 2);
}

void checkBox(const QStyleOption* option, QPainter* painter) {
    const PainterState state(painter);
    rounded(painter, option->rect, markBorder(option), borderWidth(option), markGround(option), 3);
    if (checked(option)) tick(option->rect, Qt::white, painter);
}

void radioButton(const QStyleOption* option, QPainter* painter) {
    const PainterState state(painter);
    const QRectF place = option->rect;
    rounded(painter, place, markBorder(option), borderWidth(option), markGround(option), place.width() / 2);
    if (!checked(option)) return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(Qt::white);
    painter->drawEllipse(place.center(), place.width() / 5, place.width() / 5);
}

void chevron(const QRectF& place, Qt::ArrowType direction, const QStyleOption* option, QPainter* painter) {
    const PainterState state(painter);
    const auto group = enabled(option) ? QPalette::Active : QPalette::Disabled;
    const double half = 4;
    const double rise = direction == Qt::UpArrow ? -half / 2 : half / 2;
    const QPointF centre = place.center();
    painter->setPen(
        QPen(option->palette.color(group, QPalette::Text), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPolyline(QPolygonF(
        {centre + QPointF(-half, -rise), centre + QPointF(0, rise), centre + QPointF(half, -rise)}));
}

void tab(const QStyleOptionTab* option, QPainter* painter) {
    const PainterState state(painter);
    const QRectF place = option->rect;
    if (hovered(option) && !has(option, QStyle::State_Selected))
        rounded(painter, place.adjusted(1, 2, -1, -2), Qt::transparent, 0,
                Theme::mixed(option->palette.color(QPalette::Window), Theme::accent(), 0.12));
    if (focused(option)) rounded(painter, place.adjusted(2, 3, -2, -5), Theme::accent(), 1.5, Qt::NoBrush);
    if (!has(option, QStyle::State_Selected)) return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(Theme::accent());
    painter->drawRoundedRect(QRectF(place.left() + 8, place.bottom() - 3, place.width() - 16, 3), 1.5, 1.5);
}

void framePanel(const QRectF& place, QPainter* painter) {
    const PainterState state(painter);
    rounded(painter, place, Theme::faintLine(), 1, Qt::NoBrush, 6);
}

void progressGroove(const QStyleOption* option, QPainter* painter) {
    const PainterState state(painter);
    rounded(painter, option->rect, Theme::outline(), 1, option->palette.color(QPalette::Base));
}

void progressContents(const QRectF& filled, const QStyleOption* option, QPainter* painter) {
    const PainterState state(painter);
    const bool dark = Theme::mode() == Theme::Mode::Dark;
    const QColor ground = dark ? option->palette.color(QPalette::Highlight) : Theme::blue();
    rounded(painter, filled, Qt::transparent, 0, ground, corner - 1);
}

void bar(QWidget* widget, const QColor& ground, Qt::Edge end) {
    QPainter painter(widget);
    painter.fillRect(widget->rect(), ground);
    QRect line = widget->rect();
    if (end == Qt::RightEdge) line.setLeft(line.right());
    if (end == Qt::BottomEdge) line.setTop(line.bottom());
    if (end == Qt::TopEdge) line.setBottom(line.top());
    painter.fillRect(line, Theme::faintLine());
}

void scrollHandle(const QRectF& place, const QStyleOption* option, bool isPressed, QPainter* painter) {
    const PainterState state(painter);
    const QColor idle =
        Theme::mixed(option->palette.color(QPalette::Window), option->palette.color(QPalette::Dark), 0.65);
    const QColor ground = isPressed ? Theme::accent() : hovered(option) ? Theme::outline() : idle;
    const double radius = std::min(place.width(), place.height()) / 2;
    rounded(painter, place, Qt::transparent, 0, ground, radius);
}

} // namespace HousePaint
