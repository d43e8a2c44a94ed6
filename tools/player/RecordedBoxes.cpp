#include "RecordedBoxes.h"

#include "LineText.h"

#include <QRegularExpression>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isQuestion(int style) { return (style & vbYesNo) != 0; }

QString kindOf(int style) {
    constexpr int icons = 0x70;
    if (isQuestion(style)) return u"yesno"_s;
    switch (style & icons) {
    case vbCritical:
        return u"critical"_s;
    case vbExclamation:
        return u"exclamation"_s;
    case vbInformation:
        return u"information"_s;
    default:
        return u"plain"_s;
    }
}

} // namespace

MsgBoxResult RecordedBoxes::show(const QString& text, int style, const QString& title) {
    const QString box = kindOf(style) + u" · "_s + lineText(title) + u" · "_s + lineText(text);
    m_boxes.append(box);
    return isQuestion(style) ? answer(box) : vbOK;
}

MsgBoxResult RecordedBoxes::answer(const QString& box) {
    if (!m_answers.isEmpty()) return m_answers.takeFirst();
    m_unanswered.append(box);
    return vbNo;
}

QStringList RecordedBoxes::takeKinds() {
    static const QRegularExpression error(u"^[^·]*· Runtime - Error: (\\d+) ·"_s);
    QStringList kinds;
    for (const QString& box : take()) {
        const auto match = error.match(box);
        kinds += match.hasMatch() ? match.captured(1) : box.section(u' ', 0, 0);
    }
    return kinds;
}

QStringList RecordedBoxes::take() { return std::exchange(m_boxes, {}); }

QStringList RecordedBoxes::takeUnanswered() { return std::exchange(m_unanswered, {}); }
