#include "SuchKont.h"

#include "Conversions.h"
#include "Eingaben.h"
#include "ErrorTail.h"
#include "Gitter.h"
#include "Meldungen.h"
#include "Namen.h"
#include "Screens.h"
#include "Session.h"
#include "SqlText.h"
#include "Tastenfilter.h"
#include "Theme.h"
#include "modKontakt.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// By SuchAufrufer.
std::array<Suchweg, 2> wege{};

const Suchweg& weg() { return wege.at(std::size_t(session().SuchAufrufer)); }

} // namespace

SuchKont::SuchKont()
    : Screen(u"SuchKont"_s, u"Suche Kontakt oder Mitglied..."_s) {
    setUpControls();
    QGridLayout* screen = Layout::form(nullptr);
    Layout::addFields(screen, {{Label1, txtSuch}, {Label2, cboKatego}});
    screen->addWidget(cmdSuch, 0, 2, 2, 1);
    screen->setColumnStretch(1, 1);
    QVBoxLayout* whole = Layout::column(this);
    whole->addLayout(screen);
    whole->addWidget(tblSuch, 1);
    whole->addWidget(Layout::line(this, {Label3, lblGefDS}));
    resize(720, 440);

    on(cmdSuch, &QPushButton::clicked, [this](bool) { cmdSuch_Click(); });
    on(tblSuch, &DataTable::OnGridCellOpen, [this](int row, int) { tblSuch_OnGridCellOpen(row); });
    modRun::connectGridFocus(tblSuch);
}

void SuchKont::setUpControls() {
    txtSuch->setKeyFilter(&modRun::FilterSuche);
    txtSuch->setPlaceholderText(u"Anfang eines Namens; für ä, ö, ü und ß ein * wie in M*ller"_s);
    cmdSuch->setIcon(Theme::icon(u"suchen"_s));
    cmdSuch->setIconSize(QSize(32, 32));
    cmdSuch->setToolTip(u"Suchen"_s);
    cmdSuch->setAccessibleName(u"Suchen"_s);
    cmdSuch->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    tblSuch->setColumns({{u"KontaktNr"_s, 80, true},
                         {u"Kategorie"_s, 160},
                         {u"Firma"_s, 160},
                         {.head = u"Nachname"_s, .width = 140, .name = true},
                         {u"Vorname"_s, 120}});
    tblSuch->setAccessibleName(u"Gefundene Kontakte"_s);
    tblSuch->setEmptyHint(u"Schreiben Sie oben den Anfang eines Namens und drücken Sie die Eingabetaste."_s);
    lblGefDS->setAccessibleName(u"Gefunden"_s);
    lblGefDS->setNumeric();
}

void SuchKont::registriere(qint16 aufrufer, const Suchweg& weg) { wege.at(std::size_t(aufrufer)) = weg; }

void SuchKont::Form_Load() {
    weg().fuelleKategorien(cboKatego);
    cboKatego->setListIndex(0);
}

void SuchKont::Form_Paint() {
    if (!Screens::editing()) txtSuch->setFocus();
}

bool SuchKont::Form_KeyDown(int key, Qt::KeyboardModifiers) {
    if (key == Qt::Key_Escape) {
        Hide();
        return true;
    }
    const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!enter || !(txtSuch->hasFocus() || cboKatego->hasFocus())) return false;
    cmdSuch_Click();
    return true;
}

void SuchKont::cmdSuch_Click() {
    if (!modRun::fehlerfrei(modRun::erstesLeere({txtSuch, cboKatego}))) return;
    // Compare the index: the club may have a category of its own named "Alle".
    const bool alle = weg().ersterIstAlle && cboKatego->currentIndex() == 0;
    const qint32 kategonr = alle ? 0 : ErmittleKategoNr(cboKatego->currentText());
    modKontakt::SucheKontakt(txtSuch->text(), kategonr);
    if (tblSuch->rowCount() > 0) {
        lblGefDS->setText(QString::number(tblSuch->rowCount()));
        // The grid must have its rows before it gets the focus, so that Enter opens the first one.
        tblSuch->publish();
        tblSuch->setFocus();
    } else {
        lblGefDS->setText(QString());
        txtSuch->setFocus();
    }
}

void SuchKont::tblSuch_OnGridCellOpen(int row) {
    if (row >= 0) weg().treffer(*this, row);
}

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
