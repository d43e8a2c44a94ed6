#include "Conversions.h"
#include "Datenbank.h"
#include "ErrorTail.h"
#include "Meldungen.h"
#include "Namen.h"
#include "Recordset.h"
#include "Screens.h"
#include "SqlText.h"
#include "SuchKont.h"
#include "modKontakt.h"

using namespace Qt::StringLiterals;

// Searches contacts by a word.

namespace modKontakt {

namespace {

QString sucheNach(const QString& word, qint32 kategonr) {
    const QString muster = quoted(word + u'*');
    const QString treffer =
        u"Vorname LIKE "_s + muster + u" Or Nachname LIKE "_s + muster + u" Or Firma LIKE "_s + muster;
    if (kategonr == 0) return u"SELECT * FROM Kontakt WHERE "_s + treffer;
    return u"SELECT * FROM Kontakt WHERE ("_s + treffer + u") AND (KategoNr = "_s +
           QString::number(kategonr) + u')';
}

void zeigeTreffer(ErrorTail& step, Recordset& kontakte, DataTable* grid) {
    const Recordset::Field knr = kontakte.Fields(u"knr"_s), kategonr = kontakte.Fields(u"kategonr"_s),
                           firma = kontakte.Fields(u"Firma"_s), nachname = kontakte.Fields(u"Nachname"_s),
                           vorname = kontakte.Fields(u"Vorname"_s);
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
    SuchKont& screen = the<SuchKont>();
    screen.tblSuch->clearRows();
    screen.txtSuch->setText(QString());
    screen.lblGefDS->setText(QString());
}

void SucheKontakt(const QString& word, qint32 kategonr) {
    withErrorTail(u"modKontakt"_s, u"SucheKontakt"_s, [&](ErrorTail& step) {
        Recordset kontakte;
        step([&] { kontakte = oeffneAbfrage(sucheNach(word, kategonr)); });
        if (step.test([&] { return kontakte.RecordCount() < 1; }))
            modRun::MeldeNichtsGefunden();
        else
            zeigeTreffer(step, kontakte, the<SuchKont>().tblSuch);
        step([&] { kontakte.Close(); });
    });
}

} // namespace modKontakt
