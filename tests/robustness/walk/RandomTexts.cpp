#include "RandomTexts.h"

#include <QRegularExpression>
#include <QStringList>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QStringList names =
    u"Änne|Köhler|Großmüller|Hecht|Kiesgrube Nord|Barsch|Mühlteich|Abel & Co|Ort a. d. Ähre|Zander"_s.split(
        u'|');
const QStringList numbers = u"0|1|3|7|12|007|350|2500|01067"_s.split(u'|');
const QStringList hours = u"1|2,5|0,25|7,125|12|100"_s.split(u'|');
const QStringList dates = u"14.03.2026|1.1.1990|29.02.2024|24.12.1970|14.3.|"_s.split(u'|');
const QStringList years = u"2024|2025|2026|2027"_s.split(u'|');
const QStringList odd =
    (u"| |O'Neill|'|''; --|\"Zitat\"|#1/1/2005#|100%|*|*a*|?|_x_|a;b;c|\\n\\|Zur [3]|[|&Schein|<b>fett</b>|"_s
     u"%1 %p %P|ß€ŁΩ|𝔘𝔣𝔢𝔯 🐟|\u202Erückwärts|a\u0301|erste\r\nzweite|\tTab|Mitglieder|99999|2147483647|"_s
     u"2147483648|99999999999999999999|-4|1,2,3|1.234,56|1e308|&H10|12a|31.02.2025|32.13.9999|30.12.1899|"_s
     u"1.1.100"_s)
        .split(u'|');

const QString& oneOf(const QStringList& texts, DemoDice& dice) {
    return texts[dice.below(static_cast<int>(texts.size()))];
}

QString longText(DemoDice& dice) {
    constexpr int lengths[] = {51, 81, 256, 400};
    return u"Länge "_s.repeated(dice.pick(lengths) / 6 + 1);
}

/// Patterns of controls' names and the texts for them.
const std::pair<const char16_t*, const QStringList*> wishes[] = {
    {u"FJahr", &years},
    {u"Geb|[tT]ritt|pvDate", &dates},
    {u"ArbStd|Menge", &hours},
    {u"Anz|Gew|PLZ|BLZ|KontoNr|JB|Seite", &numbers}};

} // namespace

namespace RandomTexts {

QString any(DemoDice& dice) {
    if (dice.chance(4)) return longText(dice);
    const QStringList* const lists[] = {&odd, &odd, &numbers, &dates, &hours, &names};
    return oneOf(*dice.pick(lists), dice);
}

QString fitting(DemoDice& dice, const QString& control) {
    if (control.contains(u"MonNr"_s)) return QString::number(dice.between(1, 12)).rightJustified(2, u'0');
    for (const auto& [parts, texts] : wishes)
        if (control.contains(QRegularExpression(QString::fromUtf16(parts)))) return oneOf(*texts, dice);
    if (control.contains(u"txtSuch"_s))
        return dice.chance(50) ? u"*"_s : QString(QChar(u'a' + dice.below(26)));
    if (control.contains(u"Passw"_s) && dice.chance(80)) return {};
    // Mostly a unique name.
    return oneOf(names, dice) + (dice.chance(80) ? u" %1"_s.arg(dice.below(1000)) : QString());
}

} // namespace RandomTexts
