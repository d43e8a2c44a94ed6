#include "Datensatz.h"

using namespace Qt::StringLiterals;

namespace Datensatz {

namespace {

using Anweisungen = std::function<bool(Recordset&)>;

std::optional<Zeile> fuehreAus(ErrorTail& step, const QString& tabelle, const Anweisungen& anweisungen,
                               const QStringList& gelesen = {}, const Dazu& dazu = {}) {
    Recordset satz;
    std::optional<Zeile> zeile;
    step([&] { satz = oeffneTabelle(tabelle); });
    if (anweisungen(satz)) zeile = lies(step, satz, gelesen);
    if (zeile && dazu && !dazu(*zeile)) zeile.reset();
    if (!step([&] { zeile ? satz.Close() : satz.Abandon(); })) zeile.reset();
    return zeile;
}

bool gefunden(ErrorTail& step, Recordset& satz, const Value& nummer, void (*fehlt)()) {
    const bool da = finde(step, satz, nummer);
    if (!da) fehlt();
    return da;
}

} // namespace

bool finde(ErrorTail& step, Recordset& satz, const Value& nummer) {
    step([&] { satz.Index(u"PrimaryKey"_s); });
    return step([&] { satz.Seek(u"="_s, nummer); }) && !satz.NoMatch();
}

Zeile lies(ErrorTail& step, const Recordset& satz, const QStringList& felder) {
    Zeile zeile;
    for (const QString& feld : felder) {
        Value& wert = zeile.emplace_back();
        step([&] { wert = satz.Collect(feld); });
    }
    return zeile;
}

bool schreibe(ErrorTail& step, const QString& tabelle, const Anweisungen& anweisungen) {
    return fuehreAus(step, tabelle, anweisungen).has_value();
}

std::optional<Zeile> speichere(ErrorTail& step, const QString& tabelle, const Felder& felder,
                               const QStringList& gelesen, const Dazu& dazu) {
    const auto anweisungen = [&](Recordset& satz) {
        step([&] { satz.AddNew(); });
        felder(satz);
        if (!step([&] { satz.Update(); })) return false;
        if (gelesen.isEmpty()) return true;
        // Numbers ascend, so the new record is the last one by its number.
        step([&] { satz.Index(u"PrimaryKey"_s); });
        step([&] { satz.MoveLast(); });
        return true;
    };
    return fuehreAus(step, tabelle, anweisungen, gelesen, dazu);
}

std::optional<Zeile> aendere(ErrorTail& step, const QString& tabelle, const Value& nummer,
                             const Felder& felder, const QStringList& gelesen, const Dazu& dazu,
                             void (*fehlt)()) {
    const auto anweisungen = [&](Recordset& satz) {
        if (!gefunden(step, satz, nummer, fehlt)) return false;
        step([&] { satz.Edit(); });
        felder(satz);
        return step([&] { satz.Update(); });
    };
    return fuehreAus(step, tabelle, anweisungen, gelesen, dazu);
}

bool loesche(ErrorTail& step, const QString& tabelle, const Value& nummer, const Dazu& dazu,
             void (*fehlt)()) {
    const auto anweisungen = [&](Recordset& satz) {
        return gefunden(step, satz, nummer, fehlt) && step([&] { satz.Delete(); });
    };
    return fuehreAus(step, tabelle, anweisungen, {}, dazu).has_value();
}

} // namespace Datensatz
