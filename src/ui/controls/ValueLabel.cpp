#include "ValueLabel.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int minimumValueWidth = 48;
constexpr int innerMargin = 2;
} // namespace

ValueLabel::ValueLabel(QStringView name, QWidget* parent)
    : QLabel(parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setMargin(innerMargin);
    setMinimumWidth(minimumValueWidth);
}

void ValueLabel::setNumeric() {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int digits = fontMetrics().horizontalAdvance(u"123456789"_s);
    setMinimumWidth(digits + 2 * (frameWidth() + margin() + innerMargin));
}
