#include "ValueLabel.h"

using namespace Qt::StringLiterals;

ValueLabel::ValueLabel(QStringView name, QWidget* parent)
    : QLabel(parent) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setMargin(2);
    setMinimumWidth(48);
}

void ValueLabel::setNumeric() {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int digits = fontMetrics().horizontalAdvance(u"123456789"_s);
    setMinimumWidth(digits + 2 * (frameWidth() + 2 * margin()));
}
