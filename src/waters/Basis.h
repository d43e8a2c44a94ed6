#pragma once

#include "DataTable.h"
#include "Layout.h"
#include "MemoBox.h"
#include "Screen.h"
#include "TextBox.h"

#include <QPointer>
#include <array>

/// Kinds of fish on one page, waters on the other. All other screens fill their name lists from its grids.
class Basis : public Screen {
    Q_OBJECT

    static constexpr int nameLimit = 80;

public:
    Basis();

    void Form_Load() override;
    void Form_Paint() override;
    void Form_Deactivate() override;

    /// The grid of the catch book, which shows the names of fish in column 1 and of waters in column 2.
    QPointer<DataTable> fangbuchtabelle;

    Heading* const Ueberschrift = new Heading(u"BASISDATEN", this);
    Toolbar* const Toolbar1 = buildToolbar();

    QGroupBox* const Frame1 = Layout::frame(u"Frame1", u"Fische", nullptr);
    QLabel* const lblFischNr = Layout::label(u"lblFischNr", u"Fisch-Nr:", Frame1);
    ValueLabel* const lblFNr = new ValueLabel(u"lblFNr", Frame1);
    QLabel* const lblFischArt = Layout::label(u"lblFischArt", u"Fischart:", Frame1);
    TextBox* const txtFArt = new TextBox(u"txtFArt", Frame1, nameLimit);
    QLabel* const lblFNotiz = Layout::label(u"lblFNotiz", u"Notizen...", Frame1);
    MemoBox* const txtFNotiz = new MemoBox(u"txtFNotiz", Frame1);
    QLabel* const lblÜberschr = Layout::label(u"lblÜberschr", u"Alle aufgenommen Fischarten...", Frame1);
    DataTable* const tblFBasis = new DataTable(u"tblFBasis", Frame1);
    QLabel* const lblFAnz = Layout::label(u"lblFAnz", u"Anzahl:", Frame1);
    ValueLabel* const lblFAnzahl = new ValueLabel(u"lblFAnzahl", Frame1);

    QGroupBox* const Frame2 = Layout::frame(u"Frame2", u"Gewässer", nullptr);
    QLabel* const lblGewNr = Layout::label(u"lblGewNr", u"Gew.- Nr:", Frame2);
    ValueLabel* const lblGNr = new ValueLabel(u"lblGNr", Frame2);
    QLabel* const lblGewBez = Layout::label(u"lblGewBez", u"Gewässer:", Frame2);
    TextBox* const txtGName = new TextBox(u"txtGName", Frame2, nameLimit);
    QLabel* const lblGNotiz = Layout::label(u"lblGNotiz", u"Notizen...", Frame2);
    MemoBox* const txtGNotiz = new MemoBox(u"txtGNotiz", Frame2);
    QLabel* const lblÜbersch2 = Layout::label(u"lblÜbersch2", u"Alle aufgenommenen Gewässer...", Frame2);
    DataTable* const tblGBasis = new DataTable(u"tblGBasis", Frame2);
    QLabel* const lblGAnz = Layout::label(u"lblGAnz", u"Anzahl:", Frame2);
    ValueLabel* const lblGAnzahl = new ValueLabel(u"lblGAnzahl", Frame2);

    QTabWidget* const TabBasis = new QTabWidget(this);

    /// A page and the table behind it. One set of routines serves both.
    struct Seite {
        QString tabelle;
        QString feldNr;
        QString feldName;
        QString art;           ///< in the question before a record is deleted
        QString nichtGefunden; ///< message if there is no record to open
        ValueLabel* nummer;
        TextBox* name;
        MemoBox* notiz;
        DataTable* grid;
        ValueLabel* anzahl;

        void zeigeAnzahl() const { anzahl->setText(QString::number(grid->rowCount())); }
        void leere() const;
    };
    const std::array<Seite, 2> seiten;
    const Seite& seiteVorn() const { return seiten[static_cast<std::size_t>(TabBasis->currentIndex())]; }

private:
    Toolbar* buildToolbar();
    /// `captions` are those of number, name, note, grid and count.
    void addPage(const QString& title, const Seite& seite, const std::array<QLabel*, 5>& captions);
};
