#pragma once

#include "ComboBox.h"
#include "DataTable.h"
#include "DateBox.h"
#include "Layout.h"
#include "MemoBox.h"
#include "Screen.h"
#include "TextBox.h"

/// The work ledger: the bookings of one member in one year, with input fields beside them. Only the value
/// labels hold the member and the sums.
class Arbeit : public Screen {
    Q_OBJECT

    static constexpr int noteLimit = 255;

public:
    Arbeit();

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Deactivate() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    /// Call before showing the screen with a member: the next activation then does not open the search.
    void erwarteMitglied() { m_uebergabe = true; }

    Heading* const Ueberschrift = new Heading(u"ARBEITSCONTROLLING", this);
    Toolbar* const Toolbar1 = buildToolbar();
    QGroupBox* const Frame1 = Layout::frame(u"Frame1", u"Arbeitscontrolling...", this);

    QGroupBox* const Frame3 = Layout::frame(u"Frame3", u"Ausgewähltes Mitglied...", Frame1);
    QPushButton* const cmdSuch = Layout::button(u"cmdSuch", {}, Frame3);
    QPushButton* const cmdMList = Layout::button(u"cmdMList", {}, Frame3);
    QLabel* const Label1 = Layout::label(u"Label1", u"ausgew. Jahr:", Frame3);
    ComboBox* const cboArbJahr = new ComboBox(u"cboArbJahr", Frame3);
    QLabel* const Label2 = Layout::label(u"Label2", u"Mitgl.-Nr:", Frame3);
    ValueLabel* const lblKNr = new ValueLabel(u"lblKNr", Frame3);
    QLabel* const Label3 = Layout::label(u"Label3", u"Name:", Frame3);
    ValueLabel* const lblNName = new ValueLabel(u"lblNName", Frame3);
    QLabel* const Label4 = Layout::label(u"Label4", u"Vorname:", Frame3);
    ValueLabel* const lblVName = new ValueLabel(u"lblVName", Frame3);

    QGroupBox* const Frame7 = Layout::frame(u"Frame7", u"Buchen oder Editieren...", Frame1);
    QLabel* const lblArbN = Layout::label(u"lblArbN", u"Arb.-Nr:", Frame7);
    ValueLabel* const lblArbNr = new ValueLabel(u"lblArbNr", Frame7);
    QLabel* const lblDatum = Layout::label(u"lblDatum", u"Arb.- Datum:", Frame7);
    DateBox* const pvDate = new DateBox(u"pvDate", Frame7);
    QLabel* const lblArbZeit = Layout::label(u"lblArbZeit", u"geleistete  Arb. - Std:", Frame7);
    TextBox* const txtArbStd = new TextBox(u"txtArbStd", Frame7);
    QLabel* const lblStd = Layout::label(u"lblStd", u"Std.", Frame7);
    QLabel* const lblArbNotiz = Layout::label(u"lblArbNotiz", u"Bemerk. / Arb. - Beschreib.", Frame7);
    MemoBox* const txtArbNotiz = new MemoBox(u"txtArbNotiz", Frame7, noteLimit);

    QGroupBox* const Frame2 = Layout::frame(u"Frame2", u"Arb.-Std. Übersicht", Frame1);
    DataTable* const tblArbStd = new DataTable(u"tblArbStd", Frame2);
    QLabel* const lblGStd = Layout::label(u"lblGStd", u"Ges. - Std geleistet:", Frame2);
    ValueLabel* const lblGesStd = new ValueLabel(u"lblGesStd", Frame2);
    QLabel* const Label10 = Layout::label(u"Label10", u"Std.", Frame2);
    QLabel* const Label6 = Layout::label(u"Label6", u"Pfl.- Std:", Frame2);
    ValueLabel* const lblPflStd = new ValueLabel(u"lblPflStd", Frame2);
    QLabel* const Label8 = Layout::label(u"Label8", u"Std.", Frame2);
    QLabel* const Label9 = Layout::label(u"Label9", u"Erg. SOLL / HABEN:", Frame2);
    ValueLabel* const lblErgStd = new ValueLabel(u"lblErgStd", Frame2);
    QLabel* const Label5 = Layout::label(u"Label5", u"Std.", Frame2);

private:
    Toolbar* buildToolbar();
    void layOutMember();
    void layOutEntry();
    void layOutTable();

    void drucke(const QString& wort);
    void cmdSuch_Click();
    void cboArbJahr_Click();
    void tblArbStd_OnGridCellOpen(int row);

    bool m_uebergabe = false;
};
