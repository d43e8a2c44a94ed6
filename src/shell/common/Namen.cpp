#include "Namen.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "Datenbank.h"
#include "ErrorTail.h"
#include "Meldungen.h"
#include "Session.h"
#include "SqlText.h"

#include <functional>

namespace {

/// A lookup: its module and routine as the error box names them, and the field that it reads.
struct Suche {
    QString modul;
    QString routine;
    QString feld;
};

/// One field of the first row of a query; 0 or the empty text if there is no row.
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

/// The name is checked within the lookup's own error handling.
qint32 nummer(const Suche& suche, const QString& select, const QString& name) {
    return schlageNach(suche, &CLng, [&] { return select + quoted(name); });
}

QString name(const Suche& suche, const QString& select, qint32 number) {
    return schlageNach(suche, &CStr, [&] { return select + QString::number(number); });
}

QString leerOhneNamen(const Value& name) { return name.isNull() ? QString() : CStr(name); }

} // namespace

qint32 ErmittleFischNr(const QString& fisch) {
    return nummer({u"modFangbuch"_qs, u"ErmittleFischNr"_qs, u"FNr"_qs},
                  u"SELECT FNr FROM Fisch WHERE FName = "_qs, fisch);
}

QString ErmittleFischname(qint32 number) {
    return name({u"modFangbuch"_qs, u"ErmittleFischname"_qs, u"FName"_qs},
                u"SELECT FName FROM Fisch WHERE FNr = "_qs, number);
}

qint32 ErmittleGewaesserNr(const QString& gewaesser) {
    return nummer({u"modFangbuch"_qs, u"ErmittleGewaesserNr"_qs, u"GNr"_qs},
                  u"SELECT GNr FROM Gewaesser WHERE GName = "_qs, gewaesser);
}

QString ErmittleGewaessername(qint32 number) {
    return name({u"modFangbuch"_qs, u"ErmittleGewaessername"_qs, u"GName"_qs},
                u"SELECT GName FROM Gewaesser WHERE GNr = "_qs, number);
}

qint32 ErmittleKategoNr(const QString& kategorie) {
    return nummer({u"modKontakt"_qs, u"ErmittleKategoNr"_qs, u"kategonr"_qs},
                  u"SELECT KategoNr FROM Katego WHERE Kategorie = "_qs, kategorie);
}

QString ErmittleKategoName(qint32 number) {
    return schlageNach({u"modKontakt"_qs, u"ErmittleKategoName"_qs, u"kategorie"_qs}, &leerOhneNamen, [&] {
        return u"SELECT Kategorie FROM Katego WHERE KategoNr = "_qs + QString::number(number);
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
