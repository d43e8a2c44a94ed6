#include "Layout.h"

#include "Heading.h"
#include "Toolbar.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace Layout {

QLabel* label(const QString& name, const QString& text, QWidget* parent) {
    auto* made = new QLabel(parent);
    made->setTextFormat(Qt::PlainText);
    made->setText(text);
    made->setObjectName(name);
    return made;
}

QCheckBox* checkBox(const QString& name, const QString& caption, QWidget* parent) {
    auto* made = new QCheckBox(caption, parent);
    made->setObjectName(name);
    return made;
}

QRadioButton* option(const QString& name, const QString& caption, QWidget* parent) {
    auto* made = new QRadioButton(caption, parent);
    made->setObjectName(name);
    return made;
}

QGroupBox* frame(const QString& name, const QString& title, QWidget* parent) {
    auto* made = new QGroupBox(title, parent);
    made->setObjectName(name);
    return made;
}

QPushButton* button(const QString& name, const QString& caption, QWidget* parent) {
    auto* made = new QPushButton(caption, parent);
    made->setObjectName(name);
    return made;
}

QVBoxLayout* column(QWidget* window) {
    auto* made = new QVBoxLayout(window);
    made->setContentsMargins(12, 12, 12, 12);
    made->setSpacing(gap);
    return made;
}

QVBoxLayout* column(QWidget* screen, Heading* heading, Toolbar* toolbar) {
    auto* whole = new QVBoxLayout(screen);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(heading);
    if (toolbar) whole->addWidget(toolbar);
    auto* rest = new QVBoxLayout;
    rest->setContentsMargins(12, gap, 12, 12);
    rest->setSpacing(gap);
    whole->addLayout(rest, 1);
    return rest;
}

QHBoxLayout* line(QWidget* parent) {
    auto* made = new QHBoxLayout(new QWidget(parent));
    made->setContentsMargins(0, 0, 0, 0);
    made->setSpacing(gap);
    return made;
}

void addRecordKeys(Toolbar* toolbar, const Toolbar::Handler& save, const Toolbar::Handler& remove,
                   const Toolbar::Handler& empty) {
    toolbar->addKeys(
        {{u"tbSpeichern"_s, u"&Speichern"_s, u"Speichern"_s, u"speichern"_s, save},
         {u"tbLoeschen"_s, u"&Löschen"_s, u"Löschen"_s, u"loeschen"_s, remove},
         {u"tbAnzLoeschen"_s, u"&Anz. löschen"_s, u"Anzeige löschen"_s, u"anzeige-loeschen"_s, empty}});
}

void addField(QGridLayout* screen, int row, QLabel* label, QWidget* field, int column) {
    screen->addWidget(label, row, column);
    screen->addWidget(field, row, column + 1);
    label->setBuddy(field);
    QString spoken = label->text();
    while (spoken.endsWith(u':') || spoken.endsWith(u'.') || spoken.endsWith(u' ')) spoken.chop(1);
    field->setAccessibleName(spoken);
}

} // namespace Layout
