#pragma once

#include "ComboBox.h"
#include "Layout.h"
#include "MemoBox.h"
#include "Screen.h"
#include "TextBox.h"
#include "ValueLabel.h"

/// Shows and edits one contact or member. Show it with ShowModal().
class Kontakt : public Screen {
    Q_OBJECT

    static constexpr int zipLimit = 5;
    static constexpr int dateLimit = 10;
    static constexpr int phoneLimit = 30;
    static constexpr int textLimit = 50;
    static constexpr int noteLimit = 255;

public:
    Kontakt();

    void Form_Load() override;
    void Form_QueryUnload() override;

    /// Disables the buttons that write and makes the fields read-only, until the screen is closed.
    void sperre();
    /// True if the chosen category makes the contact a member.
    bool istMitglied() const;
    /// Empties the screen, except for the tick of the youth group.
    void KontaktAnzeigeLoeschen();

    /// True if opened from the search. The contact's row in the overview's grid is then unknown.
    bool AusSuche = false;

    Toolbar* const Toolbar1 = buildToolbar();
    QTabWidget* const TabKont = new QTabWidget(this);

    QGroupBox* const Frame1 = Layout::frame(u"Frame1", {}, this);
    QLabel* const lblKontNr = Layout::label(u"lblKontNr", u"Kontakt-Nr:", Frame1);
    ValueLabel* const lblKNr = new ValueLabel(u"lblKNr", Frame1);
    QLabel* const lblKatego = Layout::label(u"lblKatego", u"Kontakt-Katego.:", Frame1);
    ComboBox* const cboKatego = new ComboBox(u"cboKatego", Frame1);
    QLabel* const lblAnr = Layout::label(u"lblAnr", u"Anrede:", Frame1);
    TextBox* const txtAnrede = new TextBox(u"txtAnrede", Frame1, textLimit);
    QLabel* const lblOrg = Layout::label(u"lblOrg", u"Firma:", Frame1);
    TextBox* const txtFirma = new TextBox(u"txtFirma", Frame1, textLimit);
    QLabel* const lblName = Layout::label(u"lblName", u"Nachname:", Frame1);
    TextBox* const txtNName = new TextBox(u"txtNName", Frame1, textLimit);
    QLabel* const lblVName = Layout::label(u"lblVName", u"Vorname:", Frame1);
    TextBox* const txtVName = new TextBox(u"txtVName", Frame1, textLimit);
    QLabel* const lblStrasse = Layout::label(u"lblStrasse", u"Strasse:", Frame1);
    TextBox* const txtStrasse = new TextBox(u"txtStrasse", Frame1, textLimit);
    QLabel* const lblPLZ = Layout::label(u"lblPLZ", u"PLZ:", Frame1);
    TextBox* const txtPLZ = new TextBox(u"txtPLZ", Frame1, zipLimit);
    QLabel* const lblOrt = Layout::label(u"lblOrt", u"Ort:", Frame1);
    TextBox* const txtOrt = new TextBox(u"txtOrt", Frame1, textLimit);
    QLabel* const lblGebDatum = Layout::label(u"lblGebDatum", u"Geb. - Datum:", Frame1);
    TextBox* const txtGebDat = new TextBox(u"txtGebDat", Frame1, dateLimit);
    QCheckBox* const chkJG = Layout::checkBox(u"chkJG", u"Jugendgruppe", Frame1);
    QGroupBox* const Frame2 = Layout::frame(u"Frame2", u"Geschlecht...", this);
    QRadioButton* const optMann = Layout::option(u"optMann", u"männlich", Frame2);
    QRadioButton* const optFrau = Layout::option(u"optFrau", u"weiblich", Frame2);
    QGroupBox* const Frame4 = Layout::frame(u"Frame4", u"Aufnahme [nur bei Mitgl.]", this);
    QLabel* const lblEintritt = Layout::label(u"lblEintritt", u"Aufn.- Datum:", Frame4);
    TextBox* const txtEintritt = new TextBox(u"txtEintritt", Frame4, dateLimit);
    QLabel* const lblAustritt = Layout::label(u"lblAustritt", u"Austrittsdatum:", Frame4);
    TextBox* const txtAustritt = new TextBox(u"txtAustritt", Frame4, dateLimit);
    QGroupBox* const Frame14 = Layout::frame(u"Frame14", u"Befreit (Arb.-Std.)  [nur bei Mitgl.]", this);
    QRadioButton* const optBefreit = Layout::option(u"optBefreit", u"befreit", Frame14);
    QRadioButton* const optNBefreit = Layout::option(u"optNBefreit", u"nicht befreit", Frame14);
    QGroupBox* const Frame3 = Layout::frame(u"Frame3", u"Jahresbeitrag [nur bei Mitgl.]", this);
    QRadioButton* const optBezahlt = Layout::option(u"optBezahlt", u"bezahlt", Frame3);
    QRadioButton* const optNBezahlt = Layout::option(u"optNBezahlt", u"nicht bezahlt", Frame3);

    QGroupBox* const Frame5 = Layout::frame(u"Frame5", {}, this);
    QLabel* const Label1 = Layout::label(u"Label1", u"Tel. [privat] :", Frame5);
    TextBox* const txtTelPriv = new TextBox(u"txtTelPriv", Frame5, phoneLimit);
    QLabel* const lblTelGesch = Layout::label(u"lblTelGesch", u"Tel. [gesch] :", Frame5);
    TextBox* const txtTelGesch = new TextBox(u"txtTelGesch", Frame5, phoneLimit);
    QLabel* const Label2 = Layout::label(u"Label2", u"Mobil:", Frame5);
    TextBox* const txtMobil = new TextBox(u"txtMobil", Frame5, phoneLimit);
    QLabel* const lblFax = Layout::label(u"lblFax", u"Fax:", Frame5);
    TextBox* const txtFax = new TextBox(u"txtFax", Frame5, phoneLimit);
    QLabel* const lblEMail = Layout::label(u"lblEMail", u"EMail:", Frame5);
    TextBox* const txtEMail = new TextBox(u"txtEMail", Frame5, textLimit);

    QGroupBox* const Frame6 = Layout::frame(u"Frame6", {}, this);
    QLabel* const lblKontoNr = Layout::label(u"lblKontoNr", u"Konto-Nr:", Frame6);
    TextBox* const txtKontoNr = new TextBox(u"txtKontoNr", Frame6, textLimit);
    QLabel* const Label3 = Layout::label(u"Label3", u"BLZ:", Frame6);
    TextBox* const txtBLZ = new TextBox(u"txtBLZ", Frame6, textLimit);
    QLabel* const lblKreditInstit = Layout::label(u"lblKreditInstit", u"Kredit-Instit. :", Frame6);
    TextBox* const txtKInst = new TextBox(u"txtKInst", Frame6, textLimit);
    QCheckBox* const chkEinzug = Layout::checkBox(u"chkEinzug", u"Bankeinzug", Frame6);

    QGroupBox* const Frame7 = Layout::frame(u"Frame7", {}, this);
    MemoBox* const txtNotiz = new MemoBox(u"txtNotiz", Frame7, noteLimit);

private:
    Toolbar* buildToolbar();
    void setUpFields();
    void layOutGlobal();
    void layOutPages();
    QGridLayout* pageOfOne(const QString& caption, QGroupBox* frame);
    /// Enables the fields of a member if a member category is chosen, otherwise disables them. Their values
    /// stay.
    void SetzeMitglFelder();
    void Speichern();
    void Loeschen();

    bool m_gesperrt = false;
};
