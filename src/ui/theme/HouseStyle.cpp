#include "HouseStyle.h"

#include "Theme.h"

#include <QAbstractScrollArea>
#include <QStyleFactory>
#include <QStyleOption>

using namespace Qt::StringLiterals;

namespace {

constexpr int fieldHeight = 26;
constexpr int entryHeight = 22;
constexpr int arrowWidth = 22;
constexpr int scrollExtent = 13;
constexpr int shortestHandle = 28;
constexpr int indicatorEdge = 16;
constexpr int textIndent = 3;

template<typename Option>
const Option* as(const QStyleOption* option) {
    return qstyleoption_cast<const Option*>(option);
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

QRect HouseStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
    const auto* bar = as<QStyleOptionSlider>(option);
    if (control == CC_ScrollBar && bar) {
        // The style below sees a bar with arrow buttons that stick out at the ends, and so are none.
        QStyleOptionSlider longer = *bar;
        const bool upright = bar->orientation == Qt::Vertical;
        const QPoint end(upright ? 0 : scrollExtent, upright ? scrollExtent : 0);
        longer.rect = {bar->rect.topLeft() - end, bar->rect.bottomRight() + end};
        return QProxyStyle::subControlRect(control, &longer, part, widget).translated(longer.rect.topLeft());
    }
    const auto* combo = as<QStyleOptionComboBox>(option);
    if (control == CC_ComboBox && combo && part == SC_ComboBoxEditField)
        return option->rect.adjusted(combo->editable ? textIndent : textIndent + 1, 2, -arrowWidth, -2);
    if (control == CC_ComboBox && part == SC_ComboBoxArrow)
        return {option->rect.right() - arrowWidth, option->rect.top(), arrowWidth, option->rect.height()};
    const auto* box = as<QStyleOptionGroupBox>(option);
    if (control == CC_GroupBox && box && part == SC_GroupBoxContents)
        return box->rect.adjusted(1, box->text.isEmpty() ? 1 : groupLabel.y() + box->fontMetrics.height(), -1,
                                  -1);
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
        return 0;
    case PM_DefaultFrameWidth:
        if (qobject_cast<const QAbstractScrollArea*>(widget)) return 2;
        break;
    default:
        break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
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
