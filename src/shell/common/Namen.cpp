#include "Namen.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "Datenbank.h"
#include "ErrorTail.h"
#include "Meldungen.h"
#include "Session.h"
#include "SqlText.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// A look-up: module and routine for the error message box, and the field to read.
struct Suche {
    QString modul;
    QString routine;
    QString feld;
};

/// The field of the first row of a query; 0 or the empty text if there is no row. `select` runs within the
/// look-up's own error handling.
template<typename Result>
Result schlageNach(const Suche& suche, Result (*convert)(const Value&),
                   const std::function<QString()>& select) {
    Result result{};
    withErrorTail(suche.modul, suche.routine, [&](ErrorTail& step) {
        Recordset satz;
        step([&] { satz = oeffneAbfrage(select()); });
        if (step.test([&] { return satz.RecordCount() == 1; }))
            step([&] { result = convert(satz.Collect(suche.feld)); });
        step([&] { satz.Close(); });
    });
    return result;
}

// quoted() throws for some names: call it in the function that schlageNach runs.
qint32 nummer(const Suche& suche, const QString& select, const QString& name) {
    return schlageNach(suche, &CLng, [&] { return select + quoted(name); });
}

QString name(const Suche& suche, const QString& select, qint32 number) {
    return schlageNach(suche, &CStr, [&] { return select + QString::number(number); });
}

QString leerOhneNamen(const Value& name) { return name.isNull() ? QString() : CStr(name); }

} // namespace

qint32 ErmittleFischNr(const QString& fisch) {
    return nummer({u"modFangbuch"_s, u"ErmittleFischNr"_s, u"FNr"_s},
                  u"SELECT FNr FROM Fisch WHERE FName = "_s, fisch);
}

QString ErmittleFischname(qint32 number) {
    return name({u"modFangbuch"_s, u"ErmittleFischname"_s, u"FName"_s},
                u"SELECT FName FROM Fisch WHERE FNr = "_s, number);
}

qint32 ErmittleGewaesserNr(const QString& gewaesser) {
    return nummer({u"modFangbuch"_s, u"ErmittleGewaesserNr"_s, u"GNr"_s},
                  u"SELECT GNr FROM Gewaesser WHERE GName = "_s, gewaesser);
}

QString ErmittleGewaessername(qint32 number) {
    return name({u"modFangbuch"_s, u"ErmittleGewaessername"_s, u"GName"_s},
                u"SELECT GName FROM Gewaesser WHERE GNr = "_s, number);
}

qint32 ErmittleKategoNr(const QString& kategorie) {
    return nummer({u"modKontakt"_s, u"ErmittleKategoNr"_s, u"kategonr"_s},
                  u"SELECT KategoNr FROM Katego WHERE Kategorie = "_s, kategorie);
}

QString ErmittleKategoName(qint32 number) {
    return schlageNach({u"modKontakt"_s, u"ErmittleKategoName"_s, u"kategorie"_s}, &leerOhneNamen, [&] {
        return u"SELECT Kategorie FROM Katego WHERE KategoNr = "_s + QString::number(number);
    });
}

std::optional<qint32> ermittleNummer(qint32 (*ermittle)(const QString&), ComboBox* name) {
    const qint32 number = ermittle(name->currentText());
    if (number != 0 || session().FehlerZaehler != 0) return number;
    modRun::MeldeEingabeFehler(name);
    return std::nullopt;
}

std::optional<ArtUndGewaesser> ermittleNummern(ComboBox* fisch, ComboBox* gewaesser) {
    const auto art = ermittleNummer(&ErmittleFischNr, fisch);
    if (!art) return std::nullopt;
    const auto dort = ermittleNummer(&ErmittleGewaesserNr, gewaesser);
    if (!dort) return std::nullopt;
    return ArtUndGewaesser{*art, *dort};
}
