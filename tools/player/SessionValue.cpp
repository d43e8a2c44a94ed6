#include "SessionValue.h"

#include "Conversions.h"
#include "Kontakt.h"
#include "KontaktUebers.h"
#include "NavigationBar.h"
#include "Screens.h"
#include "Session.h"
#include "Stage.h"

#include <QHash>

using namespace Qt::StringLiterals;

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
        {u"AktTag"_s, qint32(s.AktTag)},
        {u"AktWochentag"_s, s.AktWochentag},
        {u"AktMonatNr"_s, qint32(s.AktMonatNr)},
        {u"AktMonat"_s, s.AktMonat},
        {u"AktJahr"_s, qint32(s.AktJahr)},
        {u"MsgAntwort"_s, qint32(s.MsgAntwort)},
        {u"Modus"_s, Screens::editing() ? u"EDIT"_s : u"SAVE"_s},
        {u"AktZeile"_s, gridRow()},
        {u"FehlerZaehler"_s, qint32(s.FehlerZaehler)},
        {u"TabelleLaedt"_s, s.TabelleLaedt},
        {u"SuchAufrufer"_s, qint32(s.SuchAufrufer)},
        {u"KontextZeileOK"_s, s.KontextZeileOK},
        {u"NachReport"_s, s.NachReport},
        {u"AusSuche"_s, isLoaded<Kontakt>() && the<Kontakt>().AusSuche},
        {u"LetzterKlappZustand"_s, isLoaded<KontaktUebers>() && the<KontaktUebers>().LetzterKlappZustand},
        {u"AktBarItem"_s, s.AktBarItem ? s.AktBarItem->key() : QString()},
    };
    const auto found = values.find(name);
    return found == values.end() ? QString() : CStr(*found);
}
