#include "RandomTexts.h"

#include <QStringList>
#include <algorithm>

namespace {

const QStringList names =
    u"Änne|Köhler|Großmüller|Hecht|Kiesgrube Nord|Barsch|Mühlteich|Abel & Co|Ort a. d. Ähre|Zander"_qs.split(
        u'|');
const QStringList numbers = u"0|1|3|7|12|007|350|2500|01067"_qs.split(u'|');
const QStringList hours = u"1|2,5|0,25|7,125|12|100"_qs.split(u'|');
const QStringList dates = u"14.03.2026|1.1.1990|29.02.2024|24.12.1970|14.3.|"_qs.split(u'|');
const QStringList years = u"2024|2025|2026|2027"_qs.split(u'|');
const QStringList odd =
    (u"| |O'Neill|'|''; --|\"Zitat\"|#1/1/2005#|100%|*|*a*|?|_x_|a;b;c|\\n\\|Zur [3]|[|&Schein|<b>fett</b>|"_qs
     u"%1 %p %P|ß€ŁΩ|𝔘𝔣𝔢𝔯 🐟|\u202Erückwärts|a\u0301|erste\r\nzweite|\tTab|Mitglieder|99999|2147483647|"_qs
     u"2147483648|99999999999999999999|-4|1,2,3|1.234,56|1e308|&H10|12a|31.02.2025|32.13.9999|30.12.1899|"_qs
     u"1.1.100"_qs)
        .split(u'|');

const QString& oneOf(const QStringList& texts, DemoDice& dice) {
    return texts[dice.below(static_cast<int>(texts.size()))];
}

QString longText(DemoDice& dice) {
    constexpr int lengths[] = {51, 81, 256, 400};
    return u"Länge "_qs.repeated(dice.pick(lengths) / 6 + 1);
}

bool asksFor(const QString& control, const QStringList& parts) {
    return std::any_of(parts.begin(), parts.end(),
                       [&](const QString& part) { return control.contains(part); });
}

} // namespace

namespace RandomTexts {

QString any(DemoDice& dice) {
    if (dice.chance(4)) return longText(dice);
    const QStringList* const lists[] = {&odd, &odd, &numbers, &dates, &hours, &names};
    return oneOf(*dice.pick(lists), dice);
}

QString fitting(DemoDice& dice, const QString& control) {
    if (asksFor(control, {u"MonNr"_qs})) return QString::number(dice.between(1, 12)).rightJustified(2, u'0');
    if (asksFor(control, {u"FJahr"_qs})) return oneOf(years, dice);
    if (asksFor(control, {u"Geb"_qs, u"tritt"_qs, u"Tritt"_qs, u"pvDate"_qs})) return oneOf(dates, dice);
    if (asksFor(control, {u"ArbStd"_qs, u"Menge"_qs})) return oneOf(hours, dice);
    if (asksFor(control, {u"Anz"_qs, u"Gew"_qs, u"PLZ"_qs, u"BLZ"_qs, u"KontoNr"_qs, u"JB"_qs, u"Seite"_qs}))
        return oneOf(numbers, dice);
    if (asksFor(control, {u"txtSuch"_qs}))
        return dice.chance(50) ? u"*"_qs : QString(QChar(u'a' + dice.below(26)));
    if (asksFor(control, {u"Passw"_qs}) && dice.chance(80)) return {};
    // Mostly a name of its own.
    return oneOf(names, dice) + (dice.chance(80) ? u" %1"_qs.arg(dice.below(1000)) : QString());
}

} // namespace RandomTexts
