#include "StatusBar.h"

#include "Clock.h"
#include "Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTimer>

using namespace Qt::StringLiterals;

StatusBar::StatusBar(QStringView name, QWidget* parent)
    : QWidget(parent)
    , m_row(new QHBoxLayout(this)) {
    setObjectName(name);
    setAccessibleName(tr("Statusleiste"));
    m_row->setContentsMargins(8, 4, 8, 4);
    m_row->setSpacing(8);
}

QLabel* StatusBar::addPanel(const QString& text, const QString& tip, bool stretch) {
    auto* panel = new QLabel(text, this);
    panel->setTextFormat(Qt::PlainText);
    panel->setToolTip(tip);
    panel->setAccessibleName(tip);
    m_row->addWidget(panel, stretch ? 1 : 0);
    m_panels.append(panel);
    panel->setObjectName(u"Panel%1"_s.arg(m_panels.size()));
    return panel;
}

void StatusBar::addClock(const QString& format, const QString& tip) {
    constexpr int everySecond = 1000; // milliseconds
    auto* panel = addPanel({}, tip);
    const auto show = [panel, format] { panel->setText(now().toString(format)); };
    auto* timer = new QTimer(panel);
    connect(timer, &QTimer::timeout, panel, show);
    timer->start(everySecond);
    show();
}

QString StatusBar::panelText(int number) const { return m_panels.at(number - 1)->text(); }

void StatusBar::setPanelText(int number, const QString& text) { m_panels.at(number - 1)->setText(text); }

void StatusBar::paintEvent(QPaintEvent* /*event*/) {
    Theme::paintBar(this, Theme::toolbarGround(), Qt::TopEdge);
}
