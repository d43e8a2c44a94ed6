#include "modSerienbrief.h"

#include "Conversions.h"
#include "CsvDatei.h"
#include "Datenbank.h"
#include "KontaktUebers.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "Namen.h"
#include "OtherProgram.h"
#include "Screens.h"
#include "Session.h"
#include "WordProcessor.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace modSerienbrief {

namespace {

constexpr qint32 aktiv = 1;
constexpr qint32 passiv = 2;
constexpr std::size_t placeOfEintritt = 13;

bool istMitglied(qint32 kategorie) { return kategorie == aktiv || kategorie == passiv; }

/// Leaves out members without a row in Mitglied.
QString abfrage(qint32 kategorie) {
    const QString felder =
        u"SELECT k.KNr, k.Firma, k.Anrede, k.Nachname, k.Vorname, k.Strasse, k.PLZ, k.Ort, k.Tel1, "_s
        u"k.Tel2, k.Fax, k.Mobil, k.GebDatum, "_s;
    const QString wahl = u"k.KategoNr = "_s + QString::number(kategorie);
    if (!istMitglied(kategorie)) return felder + u"k.EMail FROM Kontakt k WHERE "_s + wahl;
    return felder + u"m.Eintritt, k.EMail FROM Kontakt k, Mitglied m WHERE k.KNr = m.KNr AND "_s + wahl;
}

void meldeLeereKategorie(qint32 kategorie) {
    const QString leer =
        istMitglied(kategorie)
            ? u"ACHTUNG: Kategorie - Mitglieder (%1) - enthält noch keine Mitgliederdaten !"_s.arg(
                  kategorie == aktiv ? u"aktiv"_s : u"passiv"_s)
            : u"ACHTUNG: Kontakt - Kategorie - "_s + ErmittleKategoName(kategorie) +
                  u" - enthält noch keine Kontaktdaten !"_s;
    MsgBox(leer + u"\n\rKategorie wird daher bei der Erzeugung der Serienbriefdatei übergangen !"_s,
           vbInformation);
}

void schreibeKopf(CsvDatei& datei) {
    for (const QString& kopf :
         {u"Mitgl.-Nr"_s, u"Firma"_s, u"Anrede"_s, u"Nachname"_s, u"Vorname"_s, u"Strasse"_s, u"PLZ"_s,
          u"Ort"_s, u"Telefon [privat]"_s, u"Telefon [geschftl.]"_s, u"Fax"_s, u"Mobil"_s, u"Geb.-Datum"_s,
          u"Eintritt"_s, u"EMail"_s})
        datei.writeText(kopf);
    datei.endLine();
}

/// The query gives the fields in the file's order, but a date of joining only for members: others get an
/// empty field.
void schreibeKontakte(CsvDatei& datei, Recordset& kontakte, bool mitglieder) {
    const std::vector<Recordset::Field> felder = kontakte.Fields();
    for (; !kontakte.Eof(); kontakte.MoveNext()) {
        for (std::size_t i = 0; i < felder.size(); ++i) {
            if (i == placeOfEintritt && !mitglieder) datei.writeText({});
            datei.writeField(felder[i].Value());
        }
        datei.endLine();
    }
}

void schreibeKategorie(CsvDatei& datei, DataTable& uebersicht, int zeile) {
    const qint32 kategorie = CLng(uebersicht.cell(zeile, 0));
    Recordset kontakte = oeffneAbfrage(abfrage(kategorie));
    if (kontakte.RecordCount() != 0)
        schreibeKontakte(datei, kontakte, istMitglied(kategorie));
    else
        meldeLeereKategorie(kategorie);
}

void schreibeDatei(DataTable& uebersicht) {
    CsvDatei datei(CsvDatei::path(programFolder(), u"SERI.txt"_s));
    schreibeKopf(datei);
    uebersicht.enter({}); // a press may have left a child table current
    for (int zeile = 0; zeile < uebersicht.rowCount(); ++zeile)
        if (uebersicht.cellText(zeile, 1) == u"-") schreibeKategorie(datei, uebersicht, zeile);
    datei.close();
}

void schreibeAnschrift(WordProcessor& word) {
    const std::initializer_list<QStringList> zeilen = {
        {u"Firma"_s}, {u"Anrede"_s, u"Vorname"_s, u"Nachname"_s}, {u"Strasse"_s}, {}, {u"PLZ"_s, u"Ort"_s}};
    word.typeText(u"An"_s);
    for (const QStringList& zeile : zeilen) {
        word.typeParagraph();
        for (const QString& feld : zeile) {
            if (feld != zeile.first()) word.typeText(u" "_s);
            word.insertField(feld);
        }
    }
}

/// False, after a message box with the reason, if the letter could not be stored.
bool vollende(WordProcessor& word, const QString& datendatei) {
    QString hinweis;
    try {
        hinweis = word.complete();
    } catch (const RuntimeError& error) {
        MsgBox(u"Der Serienbrief konnte nicht im Ordner der Datendatei angelegt werden:\r\n"_s +
                   QDir::toNativeSeparators(QFileInfo(datendatei).path()) + u"\r\n"_s + error.description,
               vbCritical);
        return false;
    }
    if (!hinweis.isEmpty()) MsgBox(hinweis, vbExclamation);
    return true;
}

void beginneBrief(WordProcessor& word) {
    constexpr int formLetters = 0;
    MailMergeSource quelle;
    quelle.name = CsvDatei::path(programFolder(), u"SERI.txt"_s);
    quelle.linkToSource = true;
    word.setVisible(true);
    word.addDocument();
    word.setMainDocumentType(formLetters);
    word.openDataSource(quelle);
    word.editMainDocument();
    schreibeAnschrift(word);
    if (!vollende(word, quelle.name)) return;
    word.release();
    awaitOtherProgram();
}

} // namespace

void ErzeugeSeriendatei() {
    try {
        schreibeDatei(*the<KontaktUebers>().tblKUebers);
    } catch (const RuntimeError&) {
        MsgBox(u"ACHTUNG: Ein unerwarteter Fehler trat beim Erzeugen der Datei - SERI.txt - auf !\r\n"_s
               u"Bitte überprüfen Sie ob noch genug Speicher auf den Datenträger verfügbar ist."_s,
               vbCritical);
        return;
    }
    MsgBox(u" - SERI.txt - wurde erfolgreich im Pfad: ..\\uferwart\\seqdata\\ erstellt !"_s, vbInformation);
    if (modRun::frage(u"Möchten Sie jetzt Word starten ? Dabei wird Ihnen von Uferwart automatisch ein "_s
                      u"Std.- Serienbrief Dokument\n\r"_s
                      u"erstellt. Möchten Sie Word starten um einen Seriendruck zu erstellen ? "_s))
        StarteWordSerienbrief();
}

void StarteWordSerienbrief() {
    try {
        beginneBrief(*runningOrNew<WordProcessor>());
    } catch (const RuntimeError&) {
        // A missing word processor may show only at its first command.
        MsgBox(u"Es ist kein Word verfügbar !"_s, vbInformation);
    }
}

} // namespace modSerienbrief
