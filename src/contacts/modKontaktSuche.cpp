#include "Conversions.h"
#include "DataTable.h"
#include "Datenbank.h"
#include "ErrorTail.h"
#include "Meldungen.h"
#include "Namen.h"
#include "Recordset.h"
#include "Screens.h"
#include "SqlText.h"
#include "SuchKont.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "modKontakt.h"

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
    const Recordset::Field knr = kontakte.Fields(u"knr"_qs), kategonr = kontakte.Fields(u"kategonr"_qs),
                           firma = kontakte.Fields(u"Firma"_qs), nachname = kontakte.Fields(u"Nachname"_qs),
                           vorname = kontakte.Fields(u"Vorname"_qs);
    step([&] { grid->clearRows(); });
    step([&] { kontakte.MoveFirst(); });
    step.forEachRow(kontakte, [&] {
        step([&] {
            const Value nummer = kategonr.Value();
            const KeptErrorCount kept;
            const QString kategorie = nummer.isNull() ? QString() : ErmittleKategoName(CLng(nummer));
            grid->appendRow({knr.Value(), kategorie, firma.Value(), nachname.Value(), vorname.Value()});
        });
    });
}

} // namespace

void SuchAnzeigeLoeschen() {
    SuchKont& form = screen<SuchKont>();
    form.tblSuch->clearRows();
    form.txtSuch->setText(QString());
    form.lblGefDS->setText(QString());
}

void SucheKontakt(const QString& word, qint32 kategonr) {
    withErrorTail(u"modKontakt"_qs, u"SucheKontakt"_qs, [&](ErrorTail& step) {
        Recordset kontakte;
        step([&] { kontakte = oeffneAbfrage(sucheNach(word, kategonr)); });
        if (step.test([&] { return kontakte.RecordCount() < 1; }))
            modRun::MeldeNichtsGefunden();
        else
            zeigeTreffer(step, kontakte, screen<SuchKont>().tblSuch);
        step([&] { kontakte.Close(); });
    });
}

} // namespace modKontakt
