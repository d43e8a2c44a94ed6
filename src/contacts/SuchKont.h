#pragma once

#include "ComboBox.h"
#include "DataTable.h"
#include "Layout.h"
#include "Screen.h"
#include "TextBox.h"
#include "ValueLabel.h"

class SuchKont;

/// The search as one of its callers needs it: which categories it offers and what a hit does.
struct Suchweg {
    /// Fills the list of categories.
    void (*fuelleKategorien)(ComboBox*);
    /// True if the first entry of that list means all categories.
    bool ersterIstAlle;
    /// Called when the user opens a row of the results.
    void (*treffer)(SuchKont&, int row);
};

/// Finds contacts by a word. The session's SuchAufrufer selects the registered Suchweg.
class SuchKont : public Screen {
    Q_OBJECT

public:
    SuchKont();

    /// Call before opening the search with SuchAufrufer set to `aufrufer`.
    static void registriere(qint16 aufrufer, const Suchweg& weg);

    void Form_Load() override;
    void Form_Paint() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    QLabel* const Label1 = Layout::label(u"Label1", u"Suchbegriff:", this);
    TextBox* const txtSuch = new TextBox(u"txtSuch", this);
    QLabel* const Label2 = Layout::label(u"Label2", u"Kategorie:", this);
    ComboBox* const cboKatego = new ComboBox(u"cboKatego", this);
    QPushButton* const cmdSuch = Layout::button(u"cmdSuch", {}, this);
    DataTable* const tblSuch = new DataTable(u"tblSuch", this);
    QLabel* const Label3 = Layout::label(u"Label3", u"Gefunden:", this);
    ValueLabel* const lblGefDS = new ValueLabel(u"lblGefDS", this);

private:
    void setUpControls();
    void cmdSuch_Click();
    void tblSuch_OnGridCellOpen(int row);
};
