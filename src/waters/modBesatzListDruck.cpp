#include "Berichte.h"
#include "Besatzung.h"
#include "ComboBox.h"
#include "Drucklauf.h"
#include "Screens.h"
#include "modBesatzList.h"

using namespace Qt::StringLiterals;

// Printing of the stocking plan.

void modBesatzList::DruckeBPlanListe(const QString& wort) {
    const auto richteEin = [](Report& report) {
        // Appends to the caption instead of setting it: a report that is still in use keeps its captions.
        report.control(u"Section2"_s, u"lblUeb"_s).caption +=
            u" für das Fangjahr "_s + the<Besatzung>().cboBJahr->currentText();
    };
    drucke({.modul = u"modBesatzung"_s,
            .routine = u"DruckeBPlanListe"_s,
            .aufrufer = the<Besatzung>(),
            .grid = *the<Besatzung>().tblBList,
            .tabelle = u"Druck_Besatzliste"_s,
            .spalten = {{0, u"BNr"_s}, {1, u"FName"_s}, {2, u"GName"_s}, {3, u"Zeit"_s}, {4, u"Menge"_s}},
            .report = &Berichte::rpt_BesatzListe,
            .richteEin = richteEin},
           wort);
}
