#include "modRun.h"

#include "ComboBox.h"
#include "Conversions.h"
#include "DataTable.h"
#include "ErrorTail.h"
#include "EventGuard.h"
#include "MsgBox.h"
#include "Session.h"
#include "TextBox.h"
#include "ValueLabel.h"

#include <QCheckBox>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

namespace modRun {

void beginneBearbeitung(const ValueLabel* nummer, int row) {
    session().AktZeile = row;
    if (nummer->text().isEmpty()) return beendeVorgang();
    session().Modus = u"EDIT"_qs;
}

void vergissOffenen() { session().Modus = u"SAVE"_qs; }

void beendeVorgang() {
    session().Modus = u"SAVE"_qs;
    session().OffenAuf = nullptr;
}

void legeOffenenBeiseite(const Screen& screen) {
    if (session().Modus != u"EDIT"_qs) return;
    session().Modus = u"SAVE"_qs;
    session().OffenAuf = &screen;
}

void nimmOffenenWiederAuf(const Screen& screen) {
    if (session().OffenAuf != &screen) return;
    session().Modus = u"EDIT"_qs;
    session().OffenAuf = nullptr;
}

int zeileVon(const DataTable* grid, const ValueLabel* nummer, int row) {
    int gefunden = 0;
    return grid->find(0, gefunden, nummer->text()) < 0 ? row : gefunden;
}

} // namespace modRun
