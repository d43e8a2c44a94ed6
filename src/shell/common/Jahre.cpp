#include "Jahre.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "ErrorTail.h"
#include "Session.h"

using namespace Qt::StringLiterals;

namespace {

/// Appends the years from `lowest` to `highest`. An `akt` after them is added alone; an `akt` before them is
/// added with all years in between. Years beyond 16 bits are left out. A typing error can make a span of
/// centuries: years far from both its ends and from `akt` are left out too.
void haengeJahreAn(ComboBox* combo, qint32 lowest, qint32 highest, qint16 akt) {
    using Year = std::numeric_limits<qint16>;
    constexpr qint64 nahe = 200;
    const auto haengeAn = [&](qint64 von, qint64 bis) {
        for (qint64 jahr = std::max<qint64>(von, Year::min()); jahr <= std::min<qint64>(bis, Year::max());
             ++jahr)
            if (jahr - von < nahe || bis - jahr < nahe || std::abs(jahr - akt) < nahe)
                combo->AddItem(QString::number(jahr));
    };
    haengeAn(lowest, highest);
    if (highest < akt) haengeAn(akt, akt);
    haengeAn(akt, lowest - qint64(1));
}

/// Sets `jahr` to the lowest or highest one that a query finds. False if the query failed.
bool leseJahr(ErrorTail& step, const QString& select, qint32& jahr) {
    return leseWert(step, select, [&](const Value& wert) { jahr = CLng(wert); });
}

} // namespace

void loadcboFJahr(ComboBox* combo) {
    withErrorTail(u"modFAuswert"_s, u"loadcboFJahr"_s, [combo](ErrorTail& step) {
        const qint16 aktJahr = session().AktJahr;
        qint32 lowest = aktJahr, highest = aktJahr;
        leseJahr(step, u"SELECT MIN(FangJahr) FROM Fang"_s, lowest);
        leseJahr(step, u"SELECT MAX(FangJahr) FROM Fang"_s, highest);
        for (qint32* jahr : {&lowest, &highest})
            if (*jahr == 0) *jahr = aktJahr;
        haengeJahreAn(combo, lowest, highest, aktJahr);
    });
}

void loadcboArbJahre(ComboBox* combo) {
    withErrorTail(u"modArbeit"_s, u"loadcboArbJahre"_s, [combo](ErrorTail& step) {
        const qint16 diesesJahr = session().Startjahr;
        qint32 lowest = diesesJahr, highest = diesesJahr;
        if (leseJahr(step, u"SELECT MIN(Jahr) FROM Arbeit"_s, lowest) &&
            leseJahr(step, u"SELECT MAX(Jahr) FROM Arbeit"_s, highest))
            haengeJahreAn(combo, lowest, highest, diesesJahr);
    });
}
