#include "DateBox.h"

#include "Clock.h"
#include "Conversions.h"
#include "Theme.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QTextCharFormat>
#include <QToolButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString textOf(Date date) { return date.isEmpty() ? QString() : date.toQDate().toString(u"dd.MM.yyyy"_s); }

/// Accepts commas for points, since the number pad has a comma, and adds the points to 01022026.
QString withPoints(QString typed) {
    constexpr int dayAndMonth = 4;
    typed = typed.trimmed().replace(u',', u'.');
    const bool digits = std::all_of(typed.begin(), typed.end(), [](QChar sign) { return sign.isDigit(); });
    if (digits && typed.size() >= dayAndMonth) typed.insert(dayAndMonth, u'.').insert(dayAndMonth / 2, u'.');
    return typed;
}

} // namespace

// Not QDateEdit: it reads 31012026, typed while it shows a day of February, as 3 October 1202.
DateBox::DateBox(QStringView name, QWidget* parent)
    : QComboBox(parent)
    , m_focus(this) {
    constexpr int characters = 11; // any date and the arrow beside it
    setObjectName(name);
    setEditable(true);
    setCompleter(nullptr);
    setInsertPolicy(QComboBox::NoInsert);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(characters);
    setFocusPolicy(Qt::StrongFocus);
    connect(lineEdit(), &QLineEdit::editingFinished, this, &DateBox::settle);
    connect(this, &QComboBox::editTextChanged, this, [this] { Theme::setFaulty(this, false); });
}

Date DateBox::date() const {
    const auto day = typedDay();
    return day ? Date::fromQDate(*day) : m_date;
}

void DateBox::setDate(Date date) {
    m_date = date;
    setEditText(textOf(date));
    if (lineEdit()->hasFocus()) lineEdit()->selectAll();
}

bool DateBox::isReadable() const { return currentText() == textOf(m_date) || typedDay(); }

// None also while the text is unchanged: the date may hold more than its text shows.
std::optional<QDate> DateBox::typedDay() const {
    if (currentText() == textOf(m_date)) return std::nullopt;
    const Value typed(withPoints(currentText()));
    // IsDate() accepts a time alone as well.
    if (typed.text().contains(u':') || !IsDate(typed)) return std::nullopt;
    return CDate(typed).toQDate();
}

QDate DateBox::shownDay() const { return textOf(m_date).isEmpty() ? today() : m_date.toQDate(); }

void DateBox::settle() {
    if (const auto day = typedDay()) setDate(Date::fromQDate(*day));
    Theme::setFaulty(this, !isReadable());
}

void DateBox::step(int days) {
    settle();
    setDate(Date::fromQDate(shownDay().addDays(days)));
}

void DateBox::keyPressEvent(QKeyEvent* event) {
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (plain && event->key() == Qt::Key_Up)
        step(1);
    else if (plain && event->key() == Qt::Key_Down)
        step(-1);
    else
        QComboBox::keyPressEvent(event);
}

// Selects the text, so that typing replaces it, if the focus came by a key or by the program.
bool DateBox::event(QEvent* event) {
    const bool handled = QComboBox::event(event);
    if (m_focus.comesWith(event) && static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason)
        lineEdit()->selectAll();
    return handled;
}

void DateBox::makeCalendar() {
    m_calendar = new QCalendarWidget(this);
    m_calendar->setWindowFlags(Qt::Popup);
    m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    // Qt's red is hard to read on a dark ground, and its icons are not ours.
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) m_calendar->setWeekdayTextFormat(day, {});
    for (const auto& [name, arrow] : {std::pair(u"qt_calendar_prevmonth"_s, Qt::LeftArrow),
                                      std::pair(u"qt_calendar_nextmonth"_s, Qt::RightArrow)}) {
        auto* button = m_calendar->findChild<QToolButton*>(name);
        button->setArrowType(arrow);
        // They stand on the ground of a selection.
        QPalette onBar = button->palette();
        for (const auto ink : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
            onBar.setColor(ink, palette().color(QPalette::HighlightedText));
        button->setPalette(onBar);
    }
    // Enter and a click pick a day; going about by the arrow keys does not.
    for (const auto signal : {&QCalendarWidget::activated, &QCalendarWidget::clicked})
        connect(m_calendar, signal, this, [this](QDate day) {
            m_calendar->hide();
            setDate(Date::fromQDate(day));
        });
}

void DateBox::showPopup() {
    settle();
    if (!m_calendar) makeCalendar();
    m_calendar->setSelectedDate(shownDay());
    QRect place(mapToGlobal(rect().bottomLeft()), m_calendar->sizeHint());
    const QRect room = screen()->availableGeometry();
    if (place.bottom() > room.bottom()) place.moveBottom(mapToGlobal(QPoint(0, 0)).y());
    place.moveLeft(std::max(room.left(), std::min(place.left(), room.right() - place.width())));
    m_calendar->setGeometry(place);
    m_calendar->show();
    m_calendar->setFocus();
}
