#include "Zugriff.h"

#include "Datenbank.h"
#include "ErrorTail.h"
#include "Main.h"
#include "Screens.h"
#include "SqlText.h"
#include "StatusBar.h"

bool zugriffErlaubt(const QString& module, const QString& routine, const QString& right) {
    bool allowed = false;
    withErrorTail(module, routine, [&](ErrorTail& step) {
        // The status bar is the only record of who is logged in.
        const QString name = screen<Main>().StatusBar1->panelText(4);
        Recordset gruppe;
        step([&] {
            gruppe = oeffneAbfrage(
                u"SELECT * FROM Gruppen WHERE GNr = (SELECT GNr FROM Benutzer WHERE Name = "_qs +
                quoted(name) + u")"_qs);
        });
        if (step.test([&] { return gruppe.RecordCount() >= 1; }))
            step([&] { allowed = gruppe.Fields(right).Value() == Value(true); });
        step([&] { gruppe.Close(); });
    });
    return allowed;
}
