#include "Toolbar.h"

#include "EventGuard.h"
#include "Theme.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QToolButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {
constexpr int iconEdge = 24;
constexpr int gap = 4;
constexpr int margin = 8;
constexpr int separatorWidth = 9;

class Separator : public QWidget {
public:
    explicit Separator(QWidget* parent)
        : QWidget(parent) {
        setFixedWidth(separatorWidth);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(QRect(width() / 2, gap, 1, height() - 2 * gap), Theme::outline());
    }
};

} // namespace

Toolbar::Toolbar(QWidget* parent, std::initializer_list<Key> keys)
    : QWidget(parent)
    , m_row(new QHBoxLayout(this)) {
    setObjectName(u"Toolbar1"_s);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    m_row->setContentsMargins(margin, gap, margin, gap);
    m_row->setSpacing(gap);
    m_row->addStretch(1);
    addKeys(keys);
}

QToolButton* Toolbar::addKey(const Key& key) {
    // Of two keys that want the same letter the first one has it; the toolkit would give it to neither.
    const auto letter = QKeySequence::mnemonic(key.caption);
    const bool letterTaken = !letter.isEmpty() && std::ranges::count(findChildren<QToolButton*>(), letter,
                                                                     &QToolButton::shortcut) > 0;
    auto* button = new QToolButton(this);
    button->setObjectName(key.key);
    button->setAccessibleName(QString(key.caption).remove(u'&'));
    setCaption(button, letterTaken ? button->accessibleName() : key.caption);
    button->setToolTip(key.tip);
    button->setAccessibleDescription(key.tip);
    button->setIcon(Theme::icon(key.icon));
    button->setIconSize({iconEdge, iconEdge});
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, [this, handler = key.handler] {
        runEvent([&] {
            handler();
            Q_EMIT Pressed();
        });
    });
    add(button);
    return button;
}

void Toolbar::addKeys(std::initializer_list<Key> keys) {
    for (const Key& key : keys) {
        if (m_row->count() > 1) addSeparator(); // the stretch at the end is always there
        addKey(key);
    }
}

void Toolbar::yieldLetters(const QVector<QKeySequence>& letters) {
    for (QToolButton* key : findChildren<QToolButton*>())
        if (letters.contains(key->shortcut())) setCaption(key, key->text().remove(u'&'));
}

void Toolbar::setCaption(QToolButton* key, const QString& caption) {
    key->setText(caption);
    key->setFocusPolicy(key->shortcut().isEmpty() ? Qt::TabFocus : Qt::NoFocus);
}

void Toolbar::addSeparator() { add(new Separator(this)); }

void Toolbar::add(QWidget* control) { m_row->insertWidget(m_row->count() - 1, control); }

QToolButton* Toolbar::key(const QString& key) const {
    return findChild<QToolButton*>(key, Qt::FindDirectChildrenOnly);
}

void Toolbar::setKeyEnabled(const QString& key, bool on) { this->key(key)->setEnabled(on); }

void Toolbar::paintEvent(QPaintEvent* /*event*/) {
    Theme::paintBar(this, Theme::toolbarGround(), Qt::BottomEdge);
}
