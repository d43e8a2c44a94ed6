#include "Layout.h"

#include "Theme.h"

#include <QIcon>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

template<typename Control>
Control* named(QStringView name, QStringView text, QWidget* parent) {
    auto* made = new Control(text.toString(), parent);
    made->setObjectName(name);
    return made;
}

} // namespace

namespace Layout {

QLabel* label(QStringView name, QStringView text, QWidget* parent) {
    auto* made = named<QLabel>(name, text, parent);
    made->setTextFormat(Qt::PlainText);
    return made;
}

QGroupBox* frame(QStringView name, QStringView title, QWidget* parent) {
    return named<QGroupBox>(name, title, parent);
}

QCheckBox* checkBox(QStringView name, QStringView caption, QWidget* parent) {
    return named<QCheckBox>(name, caption, parent);
}

QRadioButton* option(QStringView name, QStringView caption, QWidget* parent) {
    return named<QRadioButton>(name, caption, parent);
}

QPushButton* button(QStringView name, QStringView caption, QWidget* parent) {
    return named<QPushButton>(name, caption, parent);
}

QLabel* picture(QStringView name, QStringView icon, QSize size, QWidget* parent) {
    auto* made = named<QLabel>(name, {}, parent);
    made->setPixmap(Theme::icon(icon.toString()).pixmap(size, parent->devicePixelRatio()));
    return made;
}

QVBoxLayout* column(QWidget* window) {
    auto* made = new QVBoxLayout(window);
    made->setContentsMargins(12, 12, 12, 12);
    made->setSpacing(gap);
    return made;
}

QVBoxLayout* stack(QWidget* window, const QVector<QWidget*>& parts, QWidget* highest) {
    auto* made = new QVBoxLayout(window);
    made->setContentsMargins(0, 0, 0, 0);
    made->setSpacing(0);
    for (QWidget* part : parts) made->addWidget(part, part == highest ? 1 : 0);
    return made;
}

QVBoxLayout* column(QWidget* screen, Heading* heading, Toolbar* toolbar) {
    auto* rest = new QVBoxLayout;
    rest->setContentsMargins(12, gap, 12, 12);
    rest->setSpacing(gap);
    stack(screen, {heading, toolbar})->addLayout(rest, 1);
    return rest;
}

void column(QWidget* screen, Heading* heading, Toolbar* toolbar, const QVector<QWidget*>& parts,
            QWidget* highest) {
    QVBoxLayout* rest = column(screen, heading, toolbar);
    for (QWidget* part : parts) rest->addWidget(part, part == highest ? 1 : 0);
}

QVBoxLayout* page(QTabWidget* tabs, const QString& caption) {
    auto* made = new QVBoxLayout(new QWidget(tabs));
    made->setContentsMargins(gap, gap, gap, gap);
    made->setSpacing(gap);
    tabs->addTab(made->parentWidget(), caption);
    return made;
}

QHBoxLayout* line(QWidget* parent) {
    auto* made = new QHBoxLayout(new QWidget(parent));
    made->setContentsMargins(0, 0, 0, 0);
    made->setSpacing(gap);
    return made;
}

QWidget* line(QWidget* parent, const QVector<QWidget*>& parts, QWidget* widest) {
    QHBoxLayout* row = line(parent);
    for (QWidget* part : parts) row->addWidget(part, part == widest ? 1 : 0);
    if (!widest) row->addStretch();
    return row->parentWidget();
}

Toolbar* recordToolbar(QWidget* screen, const Toolbar::Handler& save, const Toolbar::Handler& remove,
                       const Toolbar::Handler& empty) {
    return new Toolbar(screen, {{u"tbSpeichern"_s, u"&Speichern"_s, u"Speichern"_s, u"speichern"_s, save},
                                {u"tbLoeschen"_s, u"&Löschen"_s, u"Löschen"_s, u"loeschen"_s, remove},
                                {u"tbAnzLoeschen"_s, u"&Anz. löschen"_s, u"Anzeige löschen"_s,
                                 u"anzeige-loeschen"_s, empty}});
}

QGridLayout* form(QWidget* frame) {
    auto* made = new QGridLayout(frame);
    made->setHorizontalSpacing(gap);
    return made;
}

void addField(QGridLayout* screen, int row, QLabel* label, QWidget* field, int column) {
    screen->addWidget(label, row, column);
    screen->addWidget(field, row, column + 1);
    label->setBuddy(field);
    static const QRegularExpression marksAtTheEnd(u"[:. ]+$"_s);
    field->setAccessibleName(label->text().remove(marksAtTheEnd));
}

void addFields(QGridLayout* screen, std::initializer_list<std::pair<QLabel*, QWidget*>> fields, int column) {
    int row = 0;
    for (const auto& [label, field] : fields) addField(screen, row++, label, field, column);
}

void addCount(QHBoxLayout* row, QLabel* caption, ValueLabel* value) {
    row->addWidget(caption);
    row->addWidget(value);
    value->setAccessibleName(caption->text());
    value->setNumeric();
}

} // namespace Layout
