#include "ProgressBar.h"

#include <algorithm>

using namespace Qt::StringLiterals;

static constexpr int hundredths = 100;

ProgressBar::ProgressBar(QStringView name, QWidget* parent)
    : QProgressBar(parent) {
    setObjectName(name);
    setRange(0, hundredths);
    setFormat(u"%p %"_s);
    setMax(1);
}

void ProgressBar::setMax(qint64 maximum) {
    m_max = std::max<qint64>(1, maximum);
    m_value = m_reached = 0;
    setValue(0);
    m_sincePainted.start();
}

void ProgressBar::setProgress(qint64 value) {
    constexpr int betweenPaints = 40; // milliseconds
    m_value = std::clamp<qint64>(value, 0, m_max);
    const int reached = static_cast<int>(m_value * hundredths / m_max);
    if (reached == m_reached) return;
    m_reached = reached;
    if (reached < hundredths && !m_sincePainted.hasExpired(betweenPaints)) return;
    setValue(reached);
    m_sincePainted.start();
}
