#include "HouseStyle.h"

#include "HousePaint.h"
#include "Theme.h"

#include <QAbstractScrollArea>
#include <QLabel>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int fieldHeight = 26;
constexpr int entryHeight = 22;
constexpr int arrowWidth = 22;
constexpr int scrollExtent = 13;
constexpr int scrollInset = 3;
constexpr int shortestHandle = 28;
constexpr int indicatorEdge = 16;
constexpr int textIndent = 3;
constexpr QPoint groupLabel(10, 6);

template<typename Option>
const Option* as(const QStyleOption* option) {
    return qstyleoption_cast<const Option*>(option);
}

// The place of the handle in a scroll bar without arrow buttons.
QRect handleRect(const QStyleOptionSlider* bar) {
    const bool upright = bar->orientation == Qt::Vertical;
    const int length = upright ? bar->rect.height() : bar->rect.width();
    const qint64 span = qint64(bar->maximum) - bar->minimum + bar->pageStep;
    const int share = span > 0 ? static_cast<int>(qint64(length) * bar->pageStep / span) : length;
    const int handle =
        bar->maximum > bar->minimum ? std::clamp(share, std::min(shortestHandle, length), length) : length;
    const int start = QStyle::sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition,
                                                      length - handle, bar->upsideDown);
    const QRect place =
        upright ? QRect(0, start, bar->rect.width(), handle) : QRect(start, 0, handle, bar->rect.height());
    return place.translated(bar->rect.topLeft());
}

QRect scrollPart(const QStyleOptionSlider* bar, QStyle::SubControl part) {
    const QRect whole = bar->rect;
    const QRect handle = handleRect(bar);
    const bool upright = bar->orientation == Qt::Vertical;
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return whole;
    case QStyle::SC_ScrollBarSlider:
        return handle;
    case QStyle::SC_ScrollBarSubPage:
        return upright ? QRect(whole.topLeft(), handle.topRight())
                       : QRect(whole.topLeft(), handle.bottomLeft());
    case QStyle::SC_ScrollBarAddPage:
        return upright ? QRect(handle.bottomLeft(), whole.bottomRight())
                       : QRect(handle.topRight(), whole.bottomRight());
    default:
        return {};
    }
}

// Around a toolbar button as a whole. Qt's own focus rectangle runs through the icon.
void drawFocus(const QStyleOption* option, QPainter* painter, const QWidget* widget) {
    QStyleOption place = *option;
    if (qobject_cast<const QToolButton*>(widget)) place.rect = widget->rect().adjusted(1, 1, -1, -1);
    HousePaint::focusRing(&place, painter);
}

QRect contentsOfGroup(const QStyleOptionComplex* option) {
    const auto* box = as<QStyleOptionGroupBox>(option);
    const bool titled = box && !box->text.isEmpty();
    const int top = titled ? groupLabel.y() + option->fontMetrics.height() : 1;
    return option->rect.adjusted(1, top, -1, -1);
}

void drawComboBox(const QStyleOptionComboBox* combo, QPainter* painter, const QWidget* widget) {
    HousePaint::field(combo, painter, Theme::isFaulty(widget));
    const QRect arrow(combo->rect.right() - arrowWidth, combo->rect.top(), arrowWidth, combo->rect.height());
    HousePaint::chevron(arrow, Qt::DownArrow, combo, painter);
}

void drawProgress(const QStyleOptionProgressBar* bar, QPainter* painter) {
    const QRectF room = QRectF(bar->rect).adjusted(2, 2, -2, -2);
    const double part = double(bar->progress - bar->minimum) / std::max(1, bar->maximum - bar->minimum);
    if (part <= 0) return;
    const QSizeF filled(room.width() * std::min(1.0, part), room.height());
    HousePaint::progressContents({room.topLeft(), filled}, bar, painter);
}

// The figure crosses the filled and the empty part in one ink, which is legible on both.
void drawProgressLabel(const QStyleOptionProgressBar* bar, QPainter* painter) {
    painter->save();
    painter->setPen(bar->palette.color(QPalette::Text));
    painter->drawText(bar->rect, Qt::AlignCenter, bar->text);
    painter->restore();
}

QString messagePicture(QStyle::StandardPixmap which) {
    switch (which) {
    case QStyle::SP_MessageBoxInformation:
        return u"hinweis"_s;
    case QStyle::SP_MessageBoxWarning:
        return u"warnung"_s;
    case QStyle::SP_MessageBoxCritical:
        return u"fehler"_s;
    default:
        return {};
    }
}

} // namespace

HouseStyle::HouseStyle()
    : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

QIcon HouseStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                               const QWidget* widget) const {
    const QString picture = messagePicture(which);
    return picture.isEmpty() ? QProxyStyle::standardIcon(which, option, widget) : Theme::icon(picture);
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    switch (element) {
    case PE_PanelLineEdit: {
        const auto* frame = as<QStyleOptionFrame>(option);
        if (frame && frame->lineWidth > 0) HousePaint::field(option, painter, Theme::isFaulty(widget));
        return;
    }
    case PE_FrameLineEdit:
        return;
    case PE_Frame:
        if (qobject_cast<const QAbstractScrollArea*>(widget)) return HousePaint::fieldBorder(option, painter);
        if (qobject_cast<const QLabel*>(widget)) return HousePaint::sunkenPanel(option, painter);
        break;
    case PE_PanelButtonCommand: {
        const auto* button = as<QStyleOptionButton>(option);
        return HousePaint::pushButton(option, painter,
                                      button && (button->features & QStyleOptionButton::DefaultButton));
    }
    case PE_FrameDefaultButton:
        return;
    case PE_PanelButtonTool:
        return HousePaint::toolButton(option, painter);
    case PE_FrameFocusRect:
        return drawFocus(option, painter, widget);
    case PE_IndicatorCheckBox:
        return HousePaint::checkBox(option, painter);
    case PE_IndicatorRadioButton:
        return HousePaint::radioButton(option, painter);
    case PE_FrameTabWidget:
        return HousePaint::framePanel(option->rect, painter);
    case PE_FrameTabBarBase:
        return;
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    if (const auto* tab = as<QStyleOptionTab>(option); tab && element == CE_TabBarTabShape)
        return HousePaint::tab(tab, painter);
    const auto* combo = as<QStyleOptionComboBox>(option);
    if (combo && element == CE_ComboBoxLabel && !combo->editable) return drawEntry(combo, painter, widget);
    if (const auto* bar = as<QStyleOptionProgressBar>(option)) {
        if (element == CE_ProgressBarGroove) return HousePaint::progressGroove(option, painter);
        if (element == CE_ProgressBarContents) return drawProgress(bar, painter);
        if (element == CE_ProgressBarLabel) return drawProgressLabel(bar, painter);
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
    const auto* combo = as<QStyleOptionComboBox>(option);
    if (control == CC_ComboBox && combo) return drawComboBox(combo, painter, widget);
    if (control == CC_GroupBox) return drawGroupBox(option, painter, widget);
    if (control == CC_SpinBox) return drawSpinBox(option, painter, widget);
    if (control == CC_ScrollBar) return drawScrollBar(option, painter, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void HouseStyle::drawGroupBox(const QStyleOptionComplex* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* box = as<QStyleOptionGroupBox>(option);
    if (!box || (box->subControls & SC_GroupBoxCheckBox))
        return QProxyStyle::drawComplexControl(CC_GroupBox, option, painter, widget);
    HousePaint::framePanel(option->rect, painter);
    if (box->text.isEmpty()) return;
    painter->save();
    QFont font = painter->font();
    font.setBold(true);
    painter->setFont(font);
    const bool enabled = option->state.testFlag(State_Enabled);
    painter->setPen(enabled ? Theme::headingInk()
                            : option->palette.color(QPalette::Disabled, QPalette::WindowText));
    painter->drawText(QRect(groupLabel, option->rect.size()),
                      Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic, box->text);
    painter->restore();
}

void HouseStyle::drawSpinBox(const QStyleOptionComplex* option, QPainter* painter,
                             const QWidget* widget) const {
    HousePaint::field(option, painter);
    const auto* box = as<QStyleOptionSpinBox>(option);
    if (!box || box->buttonSymbols == QAbstractSpinBox::NoButtons) return;
    HousePaint::chevron(subControlRect(CC_SpinBox, option, SC_SpinBoxUp, widget), Qt::UpArrow, option,
                        painter);
    HousePaint::chevron(subControlRect(CC_SpinBox, option, SC_SpinBoxDown, widget), Qt::DownArrow, option,
                        painter);
}

void HouseStyle::drawScrollBar(const QStyleOptionComplex* option, QPainter* painter,
                               const QWidget* /*widget*/) const {
    const auto* bar = as<QStyleOptionSlider>(option);
    if (!bar) return;
    // Covers the handle at its last place.
    painter->fillRect(bar->rect, bar->palette.color(QPalette::Window));
    if (bar->maximum <= bar->minimum) return;
    const int inset = scrollInset;
    const QRectF handle = QRectF(handleRect(bar)).adjusted(inset, inset, -inset, -inset);
    const bool held = (bar->activeSubControls & SC_ScrollBarSlider) && bar->state.testFlag(State_Sunken);
    HousePaint::scrollHandle(handle, option, held, painter);
}

QRect HouseStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
    const auto* bar = as<QStyleOptionSlider>(option);
    if (control == CC_ScrollBar && bar) return scrollPart(bar, part);
    const auto* combo = as<QStyleOptionComboBox>(option);
    if (control == CC_ComboBox && combo && part == SC_ComboBoxEditField)
        return option->rect.adjusted(combo->editable ? textIndent : textIndent + 1, 2, -arrowWidth, -2);
    if (control == CC_GroupBox && part == SC_GroupBoxContents) return contentsOfGroup(option);
    if (control == CC_ComboBox && combo && part == SC_ComboBoxArrow)
        return {option->rect.right() - arrowWidth, option->rect.top(), arrowWidth, option->rect.height()};
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QRect HouseStyle::subElementRect(SubElement element, const QStyleOption* option,
                                 const QWidget* widget) const {
    const QRect place = QProxyStyle::subElementRect(element, option, widget);
    const auto* frame = as<QStyleOptionFrame>(option);
    const bool framed = frame && frame->lineWidth > 0;
    return element == SE_LineEditContents && framed ? place.adjusted(textIndent, 0, -textIndent, 0) : place;
}

QSize HouseStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const {
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_LineEdit:
    case CT_ComboBox:
        return size.expandedTo({0, fieldHeight});
    case CT_SpinBox:
        return {size.width(), std::max(fieldHeight, option->fontMetrics.height() + 8)};
    case CT_PushButton:
        return QSize(size.width() + 8, size.height()).expandedTo({0, fieldHeight + 2});
    case CT_ToolButton: {
        // Qt leaves room for two blanks behind the words, which would make uneven gaps between keys.
        const auto* key = as<QStyleOptionToolButton>(option);
        const bool words = key && key->toolButtonStyle == Qt::ToolButtonTextBesideIcon;
        return size + QSize(words ? -2 - 2 * option->fontMetrics.horizontalAdvance(u' ') : 6, 2);
    }
    // The rows of a combo box that hangs open.
    case CT_ItemViewItem:
        return size.expandedTo({0, entryHeight});
    case CT_TabBarTab:
        return size + QSize(8, 4);
    default:
        return size;
    }
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_ScrollBarExtent:
        return scrollExtent;
    case PM_ScrollBarSliderMin:
        return shortestHandle;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return indicatorEdge;
    case PM_TabBarTabShiftVertical:
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_DefaultFrameWidth:
        return qobject_cast<const QAbstractScrollArea*>(widget)
                   ? 2
                   : QProxyStyle::pixelMetric(metric, option, widget);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* answer) const {
    switch (hint) {
    // 0: the list opens below its combo box instead of over it, with scroll bars instead of arrows.
    case SH_ComboBox_Popup:
        return 0;
    case SH_UnderlineShortcut:
        return 1;
    // They would come from the desktop, or from nowhere, and say no more than the words.
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_LineEdit_PasswordCharacter:
        return u'*';
    default:
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }
}
