#pragma once

#include "DataTable.h"
#include "KontaktUebers.h"
#include "OpenFolder.h"
#include "ProgramFolder.h"
#include "Screens.h"
#include "Session.h"

#include <QFile>
#include <QTemporaryDir>

/// The fields of a contact that the serial letter shows; the rest is empty texts.
struct Person {
    qint32 KategoNr;
    QString Firma, Anrede, Nachname, Vorname, Strasse, PLZ, Ort;
    Value GebDatum = Date{};
    Value Eintritt = {}; ///< Null: no row in Mitglied
};

/// A program folder with contacts and their overview, as far as the serial letter looks at them.
class Club {
public:
    Club() {
        makeProgramFolder(folder.path(), 2026, false);
        beginSession(folder.path());
        session().AktDatenbank = openFolder(folder.path());
        overview().setColumns({{u"kategonr"_qs, 0}, {QString(), 0}, {u"kategorie"_qs, 200}});
        overview().setChildColumns({{u"Kontakt.-Nr"_qs, 80}}, 2);
    }
    ~Club() {
        unload<KontaktUebers>();
        session().AktDatenbank.Close();
    }

    static DataTable& overview() { return *screen<KontaktUebers>().tblKUebers; }
    static void show(const Value& kategonr, const QString& mark) {
        overview().appendRow({kategonr, mark, u"Name"_qs});
    }

    static void add(const Person& person) {
        Recordset kontakt = session().AktDatenbank.OpenRecordset(u"Kontakt"_qs, dbOpenTable);
        kontakt.AddNew();
        kontakt.Collect(u"KategoNr"_qs, person.KategoNr);
        kontakt.Collect(u"Firma"_qs, person.Firma.isNull() ? Value() : person.Firma);
        kontakt.Collect(u"Anrede"_qs, person.Anrede);
        kontakt.Collect(u"Nachname"_qs, person.Nachname);
        kontakt.Collect(u"Vorname"_qs, person.Vorname);
        kontakt.Collect(u"Strasse"_qs, person.Strasse);
        kontakt.Collect(u"PLZ"_qs, person.PLZ);
        kontakt.Collect(u"Ort"_qs, person.Ort);
        kontakt.Collect(u"Tel1"_qs, u"0351/1 "_qs);
        kontakt.Collect(u"Tel2"_qs, u"2"_qs);
        kontakt.Collect(u"Fax"_qs, u"3"_qs);
        kontakt.Collect(u"Mobil"_qs, u"4"_qs);
        kontakt.Collect(u"EMail"_qs, u"@"_qs);
        kontakt.Collect(u"GebDatum"_qs, person.GebDatum);
        kontakt.Update();
        if (person.Eintritt.isNull()) return;
        kontakt.Index(u"PrimaryKey"_qs);
        kontakt.MoveLast();
        Recordset mitglied = session().AktDatenbank.OpenRecordset(u"Mitglied"_qs, dbOpenTable);
        mitglied.AddNew();
        mitglied.Collect(u"KNr"_qs, kontakt.Collect(u"KNr"_qs));
        mitglied.Collect(u"Eintritt"_qs, person.Eintritt);
        mitglied.Update();
    }

    QByteArray seri() const {
        QFile file(folder.filePath(u"SeqData/SERI.txt"_qs));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("not there");
    }

    QTemporaryDir folder;
};
