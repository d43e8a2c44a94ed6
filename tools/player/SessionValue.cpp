#include "SessionValue.h"

#include "Conversions.h"
#include "Kontakt.h"
#include "KontaktUebers.h"
#include "NavigationBar.h"
#include "Screens.h"
#include "Session.h"
#include "Stage.h"

#include <QHash>

namespace {

/// The grid row of the record that stands open, otherwise of the screen in front.
qint32 gridRow() {
    if (const Screen* editing = Screens::editing()) return editing->gridRow();
    const Screen* front = Stage::current() ? Stage::current()->front() : nullptr;
    return front ? front->gridRow() : 0;
}

} // namespace

QString sessionValue(const QString& name) {
    const Session& s = session();
    const QHash<QString, Value> values = {
        {u"AktTag"_qs, qint32(s.AktTag)},
        {u"AktWochentag"_qs, s.AktWochentag},
        {u"AktMonatNr"_qs, qint32(s.AktMonatNr)},
        {u"AktMonat"_qs, s.AktMonat},
        {u"AktJahr"_qs, qint32(s.AktJahr)},
        {u"MsgAntwort"_qs, qint32(s.MsgAntwort)},
        {u"Modus"_qs, Screens::editing() ? u"EDIT"_qs : u"SAVE"_qs},
        {u"AktZeile"_qs, gridRow()},
        {u"FehlerZaehler"_qs, qint32(s.FehlerZaehler)},
        {u"TabelleLaedt"_qs, s.TabelleLaedt},
        {u"SuchAufrufer"_qs, qint32(s.SuchAufrufer)},
        {u"KontextZeileOK"_qs, s.KontextZeileOK},
        {u"NachReport"_qs, s.NachReport},
        {u"AusSuche"_qs, isLoaded<Kontakt>() && screen<Kontakt>().AusSuche},
        {u"LetzterKlappZustand"_qs, isLoaded<KontaktUebers>() && screen<KontaktUebers>().LetzterKlappZustand},
        {u"AktBarItem"_qs, s.AktBarItem ? s.AktBarItem->key() : QString()},
    };
    const auto found = values.find(name);
    return found == values.end() ? QString() : CStr(*found);
}
