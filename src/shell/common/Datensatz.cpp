#include "Datensatz.h"

#include "Datenbank.h"
#include "ErrorTail.h"

using namespace Qt::StringLiterals;

namespace Datensatz {

bool finde(ErrorTail& step, Recordset& satz, const Value& nummer) {
    step([&] { satz.Index(u"PrimaryKey"_s); });
    return step([&] { satz.Seek(u"="_s, nummer); }) && !satz.NoMatch();
}

Danach lies(ErrorTail& step, std::vector<Value>& werte, const QStringList& felder) {
    return [&step, &werte, felder](const Recordset& satz) {
        werte.clear();
        for (const QString& feld : felder) {
            Value& wert = werte.emplace_back();
            step([&] { wert = satz.Collect(feld); });
        }
        return true;
    };
}

bool schreibe(ErrorTail& step, const QString& tabelle, const std::function<bool(Recordset&)>& anweisungen) {
    Recordset satz;
    step([&] { satz = oeffneTabelle(tabelle); });
    const bool geschrieben = anweisungen(satz);
    return step([&] { geschrieben ? satz.Close() : satz.Abandon(); }) && geschrieben;
}

bool speichere(ErrorTail& step, const QString& tabelle, const Felder& felder, const Danach& danach) {
    return schreibe(step, tabelle, [&](Recordset& satz) {
        step([&] { satz.AddNew(); });
        felder(satz);
        if (!step([&] { satz.Update(); })) return false;
        if (!danach) return true;
        // Numbers ascend, so the new record is the last one by its number.
        step([&] { satz.Index(u"PrimaryKey"_s); });
        step([&] { satz.MoveLast(); });
        return danach(satz);
    });
}

bool aendere(ErrorTail& step, const QString& tabelle, const Value& nummer, const Felder& felder,
             const Danach& danach, void (*fehlt)()) {
    return schreibe(step, tabelle, [&](Recordset& satz) {
        if (!finde(step, satz, nummer)) {
            fehlt();
            return false;
        }
        step([&] { satz.Edit(); });
        felder(satz);
        if (!step([&] { satz.Update(); })) return false;
        return !danach || danach(satz);
    });
}

bool loesche(ErrorTail& step, const QString& tabelle, const Value& nummer, const Danach& danach,
             void (*fehlt)()) {
    return schreibe(step, tabelle, [&](Recordset& satz) {
        if (!finde(step, satz, nummer)) {
            fehlt();
            return false;
        }
        if (!step([&] { satz.Delete(); })) return false;
        return !danach || danach(satz);
    });
}

} // namespace Datensatz
