#include "Namen.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "Datenbank.h"
#include "Meldungen.h"
#include "Session.h"
#include "SqlText.h"

using namespace Qt::StringLiterals;

namespace {

/// A table of the base data, with the routines that the error message boxes of its look-ups name.
struct Stamm {
    QString modul;
    QString nummerRoutine;
    QString nameRoutine;
    QString tabelle;
    QString nummer; ///< field
    QString name;   ///< field
};

const Stamm fische = {u"modFangbuch"_s, u"ErmittleFischNr"_s, u"ErmittleFischname"_s, u"Fisch"_s, u"FNr"_s,
                      u"FName"_s};
const Stamm gewaesser = {
    u"modFangbuch"_s, u"ErmittleGewaesserNr"_s, u"ErmittleGewaessername"_s, u"Gewaesser"_s, u"GNr"_s,
    u"GName"_s};
const Stamm kategorien = {u"modKontakt"_s, u"ErmittleKategoNr"_s, u"ErmittleKategoName"_s,
                          u"Katego"_s,     u"KategoNr"_s,         u"Kategorie"_s};

qint32 ermittleNr(const Stamm& stamm, const QString& name) {
    qint32 number = 0;
    const auto select = [&] {
        return u"SELECT %1 FROM %2 WHERE %3 = "_s.arg(stamm.nummer, stamm.tabelle, stamm.name) + quoted(name);
    };
    schlageNach(stamm.modul, stamm.nummerRoutine, select,
                [&](const Recordset& satz) { number = CLng(satz.Collect(stamm.nummer)); });
    return number;
}

QString ermittleName(const Stamm& stamm, qint32 number, QString (*text)(const Value&) = &CStr) {
    QString name;
    const auto select = [&] {
        return u"SELECT %1 FROM %2 WHERE %3 = %4"_s.arg(stamm.name, stamm.tabelle, stamm.nummer).arg(number);
    };
    schlageNach(stamm.modul, stamm.nameRoutine, select,
                [&](const Recordset& satz) { name = text(satz.Collect(stamm.name)); });
    return name;
}

QString leerOhneNamen(const Value& name) { return name.isNull() ? QString() : CStr(name); }

} // namespace

qint32 ErmittleFischNr(const QString& name) { return ermittleNr(fische, name); }
QString ErmittleFischname(qint32 number) { return ermittleName(fische, number); }
qint32 ErmittleGewaesserNr(const QString& name) { return ermittleNr(gewaesser, name); }
QString ErmittleGewaessername(qint32 number) { return ermittleName(gewaesser, number); }
qint32 ErmittleKategoNr(const QString& name) { return ermittleNr(kategorien, name); }
QString ErmittleKategoName(qint32 number) { return ermittleName(kategorien, number, &leerOhneNamen); }

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
