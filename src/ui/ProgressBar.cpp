#include "ProgressBar.h"

#include <algorithm>

namespace {
constexpr int hundredths = 100;
}

ProgressBar::ProgressBar(const QString& name, QWidget* parent)
    : QProgressBar(parent) {
    setObjectName(name);
    setRange(0, hundredths);
    setFormat(u"%p %"_qs);
    setValue(0);
}

void ProgressBar::setMax(qint64 maximum) {
    m_max = std::max<qint64>(1, maximum);
    setProgress(0);
}

void ProgressBar::setProgress(qint64 value) {
    m_value = std::clamp<qint64>(value, 0, m_max);
    const int reached = static_cast<int>(m_value * hundredths / m_max);
    if (reached != QProgressBar::value()) setValue(reached);
}
