#include "Jahre.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "Datenbank.h"
#include "ErrorTail.h"
#include "Session.h"

#include <optional>

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

/// The year found by a query for the lowest or highest one; `sonst` if there is none, nullopt if the query
/// failed.
std::optional<qint32> grenzjahr(ErrorTail& step, const QString& select, qint32 sonst) {
    std::optional<qint32> jahr;
    leseWert(step, select, [&](const Value& wert) { jahr = wert.isNull() ? sonst : CLng(wert); });
    return jahr;
}

} // namespace

void loadcboFJahr(ComboBox* combo) {
    withErrorTail(u"modFAuswert"_s, u"loadcboFJahr"_s, [combo](ErrorTail& step) {
        const qint32 aktJahr = session().AktJahr;
        const auto grenze = [&](const QString& select) {
            const qint32 jahr = grenzjahr(step, select, aktJahr).value_or(aktJahr);
            return jahr == 0 ? aktJahr : jahr;
        };
        const qint32 lowest = grenze(u"SELECT MIN(FangJahr) FROM Fang"_s);
        const qint32 highest = grenze(u"SELECT MAX(FangJahr) FROM Fang"_s);
        haengeJahreAn(combo, lowest, highest, aktJahr);
    });
}

void loadcboArbJahre(ComboBox* combo) {
    withErrorTail(u"modArbeit"_s, u"loadcboArbJahre"_s, [combo](ErrorTail& step) {
        const qint32 diesesJahr = session().Startjahr;
        const auto lowest = grenzjahr(step, u"SELECT MIN(Jahr) FROM Arbeit"_s, diesesJahr);
        if (!lowest) return;
        const auto highest = grenzjahr(step, u"SELECT MAX(Jahr) FROM Arbeit"_s, diesesJahr);
        if (!highest) return;
        haengeJahreAn(combo, *lowest, *highest, diesesJahr);
    });
}
