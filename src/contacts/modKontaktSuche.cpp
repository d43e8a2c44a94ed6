#include "Conversions.h"
#include "DataTable.h"
#include "ErrorTail.h"
#include "Recordset.h"
#include "Screens.h"
#include "Session.h"
#include "SqlText.h"
#include "SuchKont.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "modKontakt.h"
#include "modRun.h"

// The search for a contact by a word.

namespace modKontakt {

namespace {

QString sucheNach(const QString& word, qint32 kategonr) {
    const QString muster = quoted(word + u'*');
    const QString treffer =
        u"Vorname LIKE "_qs + muster + u" Or Nachname LIKE "_qs + muster + u" Or Firma LIKE "_qs + muster;
    if (kategonr == 0) return u"SELECT * FROM Kontakt WHERE "_qs + treffer;
    return u"SELECT * FROM Kontakt WHERE ("_qs + treffer + u") AND (KategoNr = "_qs +
           QString::number(kategonr) + u')';
}

void zeigeTreffer(ErrorTail& step, Recordset& kontakte, DataTable* grid) {
    step([&] { grid->clearRows(); });
    step([&] { kontakte.MoveFirst(); });
    while (step.test([&] { return !kontakte.Eof(); })) {
        step([&] {
            grid->appendRow({kontakte.Collect(u"knr"_qs),
                             ErmittleKategoName(CLng(kontakte.Collect(u"kategonr"_qs))),
                             kontakte.Collect(u"Firma"_qs), kontakte.Collect(u"Nachname"_qs),
                             kontakte.Collect(u"Vorname"_qs)});
        });
        step([&] { kontakte.MoveNext(); });
    }
}

} // namespace

void SuchAnzeigeLoeschen() {
    SuchKont& form = screen<SuchKont>();
    form.tblSuch->clearRows();
    form.txtSuch->setText(QString());
    form.lblGefDS->setCaption(QString());
}

void SucheKontakt(const QString& word, qint32 kategonr) {
    withErrorTail(u"modKontakt"_qs, u"SucheKontakt"_qs, [&](ErrorTail& step) {
        Recordset kontakte;
        step([&] {
            kontakte = session().AktDatenbank.OpenRecordset(sucheNach(word, kategonr), dbOpenDynaset);
        });
        if (step.test([&] { return kontakte.RecordCount() < 1; }))
            modRun::MeldeNichtsGefunden();
        else
            zeigeTreffer(step, kontakte, screen<SuchKont>().tblSuch);
        step([&] { kontakte.Close(); });
    });
}

} // namespace modKontakt
