#pragma once

#include "ComboBox.h"
#include "DataTable.h"
#include "Layout.h"
#include "ProgressBar.h"
#include "Screen.h"
#include "TextBox.h"
#include "ValueLabel.h"
#include "Vergleich.h"

#include <array>

/// Lists members by a free combination of filters, on demand with the hours they owe and have worked. Two
/// printed lists are made from its grid.
class MitglList : public Screen {
    Q_OBJECT

    static constexpr int wholeDate = 10;
    static constexpr int description = 255;

public:
    MitglList();

    void Form_Load() override;
    void Form_Activate() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    /// True shows the three columns of hours instead of address, telephone and birthday.
    void setHourView(bool on);

    Heading* const Ueberschrift = new Heading(u"MITGLIEDER-LISTE", this);
    Toolbar* const Toolbar1 = buildToolbar();

    QGroupBox* const Frame6 = Layout::frame(u"Frame6", u"Liste generieren...", this);
    QCheckBox* const chkGebDat = Layout::checkBox(u"chkGebDat", u"Geburtsdatum:", Frame6);
    ComboBox* const cboOptGeb01 = new ComboBox(u"cboOptGeb01", Frame6);
    TextBox* const txtGeb01 = new TextBox(u"txtGeb01", Frame6, wholeDate);
    ComboBox* const cboOptGeb02 = new ComboBox(u"cboOptGeb02", Frame6);
    TextBox* const txtGeb02 = new TextBox(u"txtGeb02", Frame6, wholeDate);
    QCheckBox* const chkEintritt = Layout::checkBox(u"chkEintritt", u"Eintrittsdatum:", Frame6);
    ComboBox* const cboOptTritt01 = new ComboBox(u"cboOptTritt01", Frame6);
    TextBox* const txtTritt01 = new TextBox(u"txtTritt01", Frame6, wholeDate);
    ComboBox* const cboOptTritt02 = new ComboBox(u"cboOptTritt02", Frame6);
    TextBox* const txtTritt02 = new TextBox(u"txtTritt02", Frame6, wholeDate);
    QCheckBox* const chkGeschl = Layout::checkBox(u"chkGeschl", u"Geschlecht:", Frame6);
    QRadioButton* const optMann = Layout::option(u"optMann", u"Mann", Frame6);
    QRadioButton* const optFrau = Layout::option(u"optFrau", u"Frau", Frame6);
    QCheckBox* const chkJBeitrag = Layout::checkBox(u"chkJBeitrag", u"Jahresbeitrag:", Frame6);
    QRadioButton* const optBezahlt = Layout::option(u"optBezahlt", u"bezahlt", Frame6);
    QRadioButton* const optNBezahlt = Layout::option(u"optNBezahlt", u"n. bezahlt", Frame6);
    QCheckBox* const chkStatus = Layout::checkBox(u"chkStatus", u"Status:", Frame6);
    QRadioButton* const optAktiv = Layout::option(u"optAktiv", u"aktiv", Frame6);
    QRadioButton* const optPassiv = Layout::option(u"optPassiv", u"passiv", Frame6);
    QCheckBox* const chkBefreit = Layout::checkBox(u"chkBefreit", u"Befreit [Arb-Std.]:", Frame6);
    QRadioButton* const optBefrJa = Layout::option(u"optBefrJa", u"ja", Frame6);
    QRadioButton* const optBefrNein = Layout::option(u"optBefrNein", u"nein", Frame6);
    QCheckBox* const chkAusgMitgl = Layout::checkBox(u"chkAusgMitgl", u"ausgetr. Mitgl.:", Frame6);
    QRadioButton* const optAusgJa = Layout::option(u"optAusgJa", u"ja", Frame6);
    QRadioButton* const optAusgNein = Layout::option(u"optAusgNein", u"nein", Frame6);
    QCheckBox* const chkJG = Layout::checkBox(u"chkJG", u"Jugendgruppe:", Frame6);
    QRadioButton* const optJGJa = Layout::option(u"optJGJa", u"ja", Frame6);
    QRadioButton* const optJGNein = Layout::option(u"optJGNein", u"nein", Frame6);
    QCheckBox* const chkArbStd = Layout::checkBox(u"chkArbStd", u"Arb.-Std geleistet:", Frame6);
    QRadioButton* const optStdJa = Layout::option(u"optStdJa", u"ja", Frame6);
    QRadioButton* const optStdNein = Layout::option(u"optStdNein", u"nein", Frame6);
    QCheckBox* const chkArbAnz =
        Layout::checkBox(u"chkArbAnz", u"Arb.-Std. - Liste generieren für Arb.- Jahr:", Frame6);
    ComboBox* const cboArbJahr = new ComboBox(u"cboArbJahr", Frame6);

    /// The two bounds of a filter for a date.
    using Zeitraum = std::array<Vergleich, 2>;
    const Zeitraum gebDatum = {{{cboOptGeb01, txtGeb01}, {cboOptGeb02, txtGeb02}}};
    const Zeitraum eintritt = {{{cboOptTritt01, txtTritt01}, {cboOptTritt02, txtTritt02}}};

    DataTable* const tblMList = new DataTable(u"tblMList", this);
    QLabel* const lblAnzDS = Layout::label(u"lblAnzDS", u"Gefunden:", this);
    ValueLabel* const lblGefDS = new ValueLabel(u"lblGefDS", this);
    QLabel* const Label1 = Layout::label(u"Label1", u"Listenbeschreibung: [wird auf Liste gedruckt]", this);
    TextBox* const txtInfo = new TextBox(u"txtInfo", this, description);
    ProgressBar* const pb = new ProgressBar(u"pb", this);

private:
    Toolbar* buildToolbar();
    void layOutFilters();
    void setUpHours();
    void setUpGrid();
    QWidget* foot();
    /// Adds a filter for a date to the left half of the frame.
    void addDates(int row, QCheckBox* box, const Zeitraum& bounds);
    /// Adds a filter with two answers, of which `answer` is chosen first. Screen readers read the filter's
    /// text before each answer.
    void addAnswers(int row, int column, QCheckBox* box, QRadioButton* answer, QRadioButton* other);
    /// Makes the check box enable and disable its controls and empty the grid.
    void connectFilter(QCheckBox* box, const QVector<QWidget*>& controls);

    void tbSuch_Click();
    void tbEsc_Click();
    void drucke(const QString& wort);
    void tblMList_OnGridCellOpen(int row);

    QGridLayout* const m_filters = Layout::form(Frame6);
    QString m_arbJahr; ///< the year last chosen for the hours
};
