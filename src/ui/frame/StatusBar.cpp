#include "StatusBar.h"

#include "Clock.h"
#include "HousePaint.h"
#include "Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {
constexpr int refreshMilliseconds = 1000;
}

StatusBar::StatusBar(const QString& name, QWidget* parent)
    : QWidget(parent)
    , m_timer(new QTimer(this)) {
    setObjectName(name);
    setAccessibleName(tr("Statusleiste"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    row->setSpacing(8);
    connect(m_timer, &QTimer::timeout, this, &StatusBar::showTime);
    m_timer->start(refreshMilliseconds);
}

void StatusBar::addPanel(Style style, const QString& text, const QString& tip, bool stretch) {
    auto* label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setToolTip(tip);
    label->setObjectName(u"Panel%1"_s.arg(panelCount() + 1));
    label->setAccessibleName(tip);
    auto* row = static_cast<QHBoxLayout*>(layout());
    row->addWidget(label, stretch ? 1 : 0);
    m_panels.append({style, label});
    showTime();
}

QString StatusBar::panelText(int number) const { return m_panels.at(number - 1).label->text(); }

void StatusBar::setPanelText(int number, const QString& text) {
    m_panels.at(number - 1).label->setText(text);
}

void StatusBar::showTime() {
    const QDateTime moment = now();
    for (const Panel& panel : m_panels) {
        if (panel.style == Style::Date) panel.label->setText(moment.toString(u"dd.MM.yyyy"_s));
        if (panel.style == Style::Time) panel.label->setText(moment.toString(u"hh:mm"_s));
    }
}

void StatusBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    HousePaint::bar(rect(), Theme::toolbarGround(), Qt::TopEdge, &painter);
}
