#include "Club.h"
#include "RecordedDialogue.h"
#include "modKontakt.h"
#include "modSerienbrief.h"

#include <gtest/gtest.h>

namespace {

const QByteArray head("Mitgl.-Nr;Firma;Anrede;Nachname;Vorname;Strasse;PLZ;Ort;Telefon [privat];"
                      "Telefon [geschftl.];Fax;Mobil;Geb.-Datum;Eintritt;EMail;\r\n");
const QString done =
    u"64 Uferwart:  - SERI.txt - wurde erfolgreich im Pfad: ..\\uferwart\\seqdata\\ erstellt !"_qs;
const QString question =
    u"4 Uferwart: Möchten Sie jetzt Word starten ? Dabei wird Ihnen von Uferwart automatisch ein Std.- "
    u"Serienbrief Dokument\n\rerstellt. Möchten Sie Word starten um einen Seriendruck zu erstellen ? "_qs;
const QString passedOver = u"\n\rKategorie wird daher bei der Erzeugung der Serienbriefdatei übergangen !"_qs;
const QString failure =
    u"16 Uferwart: ACHTUNG: Ein unerwarteter Fehler trat beim Erzeugen der Datei - SERI.txt - auf !\r\n"
    u"Bitte überprüfen Sie ob noch genug Speicher auf den Datenträger verfügbar ist."_qs;

Date day(int year, int month, int dayOfMonth) { return Date::fromQDate(QDate(year, month, dayOfMonth)); }

class Seriendatei : public ::testing::Test {
protected:
    Club club;
    RecordedDialogue boxes;
};

TEST_F(Seriendatei, HoldsTheContactsOfOpenedCategoriesInTheOrderOfTheOverview) {
    Club::add({1, u" A;B \" "_qs, u"Herr"_qs, u"Müller  "_qs, u"Jörg\t "_qs, u"Weg 1"_qs, u"01067"_qs,
               u"Köln €"_qs, day(1970, 12, 24), day(2001, 2, 3)});
    Club::add({1, {}, u""_qs, u"ohne Mitgliedsdaten"_qs, u""_qs, u""_qs, u""_qs, u""_qs});
    Club::add({2, {}, u""_qs, u"Zwei\r\nZeilen"_qs, u""_qs, u""_qs, u""_qs, u"千葉"_qs, Date{}, Date{}});
    Club::add({3, {}, u"Frau"_qs, u"Händlerin"_qs, u""_qs, u""_qs, u""_qs, u""_qs, Value()});
    Club::add({4, {}, u""_qs, u"geschlossen"_qs, u""_qs, u""_qs, u""_qs, u""_qs});
    Club::show(3, u"-"_qs);
    Club::show(4, u"+"_qs);
    Club::show(1, u"-"_qs);
    Club::show(2, u"-"_qs);
    Club::overview().enterChild(1); // where the user pressed last

    modSerienbrief::ErzeugeSeriendatei();

    EXPECT_EQ(club.seri(), head + "4;;Frau;H\xe4ndlerin;;;;;0351/1;2;3;4;;;@;\r\n"
                                  "1; A;B \";Herr;M\xfcller;J\xf6rg\t;Weg 1;01067;K\xf6ln \x80;0351/1;2;3;4;"
                                  "24.12.1970;03.02.2001;@;\r\n"
                                  "3;;;Zwei\r\nZeilen;;;;??;0351/1;2;3;4;00:00:00;00:00:00;@;\r\n");
    EXPECT_EQ(boxes.texts, (QStringList{done, question}));
    EXPECT_EQ(session().MsgAntwort, vbNo);
    EXPECT_EQ(Club::overview().currentTable().parentRow, -1);
}

TEST_F(Seriendatei, TellsOfEmptyCategoriesAndGoesOn) {
    modSerienbrief::ErzeugeSeriendatei(); // nothing open
    EXPECT_EQ(club.seri(), head);
    boxes.texts.clear();

    Club::add({1, {}, u""_qs, u"ohne Mitgliedsdaten"_qs, u""_qs, u""_qs, u""_qs, u""_qs});
    for (const qint32 category : {1, 2, 7}) Club::show(category, u"-"_qs);
    modSerienbrief::ErzeugeSeriendatei();
    EXPECT_EQ(club.seri(), head);
    const QString members =
        u"64 Uferwart: ACHTUNG: Kategorie - Mitglieder (%1) - enthält noch keine Mitgliederdaten !"_qs;
    const QString others =
        u"64 Uferwart: ACHTUNG: Kontakt - Kategorie - %1 - enthält noch keine Kontaktdaten !"_qs;
    EXPECT_EQ(boxes.texts,
              (QStringList{members.arg(u"aktiv"_qs) + passedOver, members.arg(u"passiv"_qs) + passedOver,
                           others.arg(modKontakt::ErmittleKategoName(7)) + passedOver, done, question}));
}

TEST_F(Seriendatei, EndsWithOneBoxAfterAnErrorAndKeepsWhatWasWritten) {
    Club::add({3, {}, u""_qs, u"bleibt"_qs, u""_qs, u""_qs, u""_qs, u""_qs});
    Club::show(3, u"-"_qs);
    Club::show(Value(), u"-"_qs);
    modSerienbrief::ErzeugeSeriendatei();
    EXPECT_EQ(boxes.texts, QStringList{failure});
    EXPECT_EQ(club.seri(), head + "1;;;bleibt;;;;;0351/1;2;3;4;00:00:00;;@;\r\n");

    // The file is free again: the next run takes its place.
    Club::overview().removeRow(1);
    Club::overview().setCell(0, 1, u"+"_qs);
    modSerienbrief::ErzeugeSeriendatei();
    EXPECT_EQ(club.seri(), head);

    boxes.texts.clear();
    ASSERT_TRUE(QDir(club.folder.filePath(u"SeqData"_qs)).removeRecursively());
    modSerienbrief::ErzeugeSeriendatei();
    EXPECT_EQ(boxes.texts, QStringList{failure});
}

} // namespace
