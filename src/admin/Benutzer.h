#pragma once

#include "ComboBox.h"
#include "DataTable.h"
#include "Layout.h"
#include "Screen.h"
#include "TextBox.h"
#include "ValueLabel.h"

/// The users of the program on one page, the groups with the users' rights on the other.
class Benutzer : public Screen {
    Q_OBJECT

    static constexpr int nameLimit = 50;

public:
    static constexpr int userPage = 0;
    static constexpr int groupPage = 1;

    Benutzer();

    void Form_Activate() override;
    void Form_Paint() override;
    void Form_Deactivate() override;

    Heading* const Ueberschrift = new Heading(u"BENUTZERVERWALTUNG", this);
    Toolbar* const Toolbar1 = buildToolbar();
    QTabWidget* const tabBV = new QTabWidget(this);

    QGroupBox* const Frame2 = Layout::frame(u"Frame2", u"Benutzer hinzuf. oder editieren...", tabBV);
    QLabel* const lblBI = Layout::label(u"lblBI", u"Benutzer-Nr:", Frame2);
    ValueLabel* const lblBNr = new ValueLabel(u"lblBNr", Frame2);
    QLabel* const lblB = Layout::label(u"lblB", u"Benutzername:", Frame2);
    TextBox* const txtBenutzer = new TextBox(u"txtBenutzer", Frame2, nameLimit);
    QLabel* const lblP = Layout::label(u"lblP", u"Passwort:", Frame2);
    TextBox* const txtPassw = new TextBox(u"txtPassw", Frame2, nameLimit);
    QLabel* const lblBest = Layout::label(u"lblBest", u"...bestätigen:", Frame2);
    TextBox* const txtPasswBest = new TextBox(u"txtPasswBest", Frame2, nameLimit);
    QLabel* const lblBG = Layout::label(u"lblBG", u"Benutzergruppe:", Frame2);
    ComboBox* const cboBG = new ComboBox(u"cboBG", Frame2, ComboBox::Kind::Editable);
    QGroupBox* const Frame3 = Layout::frame(u"Frame3", u"Benutzerübersicht...", tabBV);
    DataTable* const tblBenutzer = new DataTable(u"tblBenutzer", Frame3);
    QLabel* const lblBAnz = Layout::label(u"lblBAnz", u"Anzahl:", Frame3);
    ValueLabel* const lblBAnzahl = new ValueLabel(u"lblBAnzahl", Frame3);

    QGroupBox* const Frame4 = Layout::frame(u"Frame4", u"Gruppe hinzuf. od. edit.", tabBV);
    QLabel* const lblGruppN = Layout::label(u"lblGruppN", u"Gruppen-Nr:", Frame4);
    ValueLabel* const lblGNr = new ValueLabel(u"lblGNr", Frame4);
    QLabel* const lblBGru = Layout::label(u"lblBGru", u"Name der Gruppe:", Frame4);
    TextBox* const txtGruppe = new TextBox(u"txtGruppe", Frame4, nameLimit);
    QLabel* const lblZA = Layout::label(u"lblZA", u"Hat Zugriff auf:", Frame4);
    const QVector<QCheckBox*> Zugriffe = buildRights(); ///< one per right, in the order of rechte
    QGroupBox* const Frame1 = Layout::frame(u"Frame1", u"Zugriff", tabBV);
    DataTable* const tblZugriff = new DataTable(u"tblZugriff", Frame1);
    QLabel* const Label1 = Layout::label(u"Label1", u"Anzahl:", Frame1);
    ValueLabel* const lblGAnzahl = new ValueLabel(u"lblGAnzahl", Frame1);

private:
    Toolbar* buildToolbar();
    QVector<QCheckBox*> buildRights();
    void layOutUser();
    void layOutGroup();
    /// Adds a page: the entry fields at the top, the grid with its count in the remaining space.
    void addPage(const QString& caption, QGroupBox* entry, DataTable* grid, QLabel* countLabel,
                 ValueLabel* count);
    void tabBV_Click(int page);

    int m_page = userPage;
};
