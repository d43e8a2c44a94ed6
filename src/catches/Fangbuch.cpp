#include "Fangbuch.h"

#include "Basis.h"
#include "Clock.h"
#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "Gitter.h"
#include "Jahre.h"
#include "Kalendernamen.h"
#include "MemoBox.h"
#include "MsgBox.h"
#include "RuntimeError.h"
#include "Screens.h"
#include "Session.h"
#include "TextBox.h"
#include "Toolbar.h"
#include "ValueLabel.h"
#include "modBasis.h"
#include "modFangbuch.h"

using namespace Qt::StringLiterals;

// The layout of the screen is in FangbuchLayout.cpp; its behaviour is here.

void Fangbuch::Form_Load() {
    beobachteBasisdaten();
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
    loadcboFJahr(cboFJahr);
    cboFJahr->setText(QString::number(session().AktJahr));
    cboSelMonat->setText(session().AktMonat);
    zeigeAnzahlen();
}

/// Updates the names of fish and waters in the grid when they change on the screen Basis.
void Fangbuch::beobachteBasisdaten() {
    const auto gleicheAb = [this](int column) {
        return [grid = QPointer(tblFList), column](const Basis::Verweis& verweis) {
            if (grid)
                modRun::GridVerweiseAbgleichen(grid, column, verweis.name, verweis.modus, verweis.alterName);
        };
    };
    the<Basis>().fischGeaendert = gleicheAb(1);
    the<Basis>().gewaesserGeaendert = gleicheAb(2);
}

void Fangbuch::Form_Activate() {
    // Filling the lists would empty them for a catch just opened from the evaluation.
    if (isEditing()) return;
    zeigeAnzahlen();
    modBasis::loadcboFArt(cboFArt);
    modBasis::loadcboGName(cboGName);
    cboFArt->setFocus();
}

void Fangbuch::Form_Deactivate() { modFangbuch::FangAnzeigeLoeschen(); }

void Fangbuch::zeigeAnzahlen() {
    lblAnzahl->setText(QString::number(tblFList->rowCount()));
    lblGesAnz->setText(modFangbuch::Ermittle_DSAnzahl());
}

bool Fangbuch::Form_KeyDown(int key, Qt::KeyboardModifiers) {
    static const QHash<int, QString> keys = {
        {Qt::Key_F2, u"tbAnzLoeschen"_s}, {Qt::Key_F3, u"tbSpeichern"_s}, {Qt::Key_F8, u"tbLoeschen"_s}};
    if (!keys.contains(key)) return false;
    Toolbar1->key(keys[key])->click();
    return true;
}

namespace {

/// The catch year of the parameters; `otherwise` if it is mistyped. An error here would end the program at
/// each choice of a month.
qint16 fangjahrDerParameter(qint16 otherwise) {
    try {
        return CInt(session().FJahr);
    } catch (const RuntimeError&) {
        return otherwise;
    }
}

} // namespace

void Fangbuch::Auswahl_Click(bool jahr) {
    Session& s = session();
    if (s.TabelleLaedt) return;
    const qint16 bisher = s.AktJahr;
    // loadTblFList() takes year and month from the session. Both are set for this call only.
    s.AktMonatNr = modRun::ErmittleMonatsNr(cboSelMonat->currentText());
    s.AktJahr = CInt(cboFJahr->currentText());
    modFangbuch::loadTblFList(pb);
    s.AktMonatNr = static_cast<qint16>(today().month());
    s.AktJahr = fangjahrDerParameter(bisher);
    lblAnzahl->setText(QString::number(tblFList->rowCount()));
    if (jahr) lblGesAnz->setText(modFangbuch::Ermittle_DSAnzahl());
}

void Fangbuch::txtMonNr_KeyPress() { ++m_tastenZaehler; }

void Fangbuch::txtMonNr_KeyDone() {
    constexpr int keysOfAMonth = 2;
    if (m_tastenZaehler >= keysOfAMonth) txtNotiz->setFocus();
}

void Fangbuch::txtMonNr_LostFocus() {
    constexpr int limit = 2;
    if (!txtMonNr->text().isEmpty() && txtMonNr->text().length() <= limit) pruefeMonat();
    m_tastenZaehler = 0;
}

void Fangbuch::pruefeMonat() {
    const QString text = txtMonNr->text();
    // Pasting bypasses the key filter. Text that is no number counts as month 0, which is refused.
    const qint32 month = IsNumeric(text) ? CLng(text) : 0;
    if (text.length() == 1 && month >= 1 && month <= 9) {
        txtMonNr->setText(u"0"_s + text);
        txtFangMonat->setText(modRun::ErmittleMonatsname(month));
    } else if (month < 1 || month > 12) {
        MsgBox(u"ACHTUNG: Unzulässige Monatsangabe, die Eingabe wird gelöscht !"_s, vbInformation);
        txtMonNr->setText(QString());
    } else {
        txtFangMonat->setText(modRun::ErmittleMonatsname(month));
    }
}

void Fangbuch::tblFList_OnGridCellOpen(int row) {
    if (row < 0) return;
    modFangbuch::FangAnzeigeLoeschen();
    modFangbuch::loadFang(tblFList, row);
    openRecord(lblFNr->text(), row);
}
