#include "SessionValue.h"

#include "Conversions.h"
#include "Session.h"

#include <QHash>

QString sessionValue(const QString& name) {
    const Session& s = session();
    const QHash<QString, Value> values = {
        {u"AktTag"_qs, qint32(s.AktTag)},
        {u"AktWochentag"_qs, s.AktWochentag},
        {u"AktMonatNr"_qs, qint32(s.AktMonatNr)},
        {u"AktMonat"_qs, s.AktMonat},
        {u"AktJahr"_qs, qint32(s.AktJahr)},
        {u"MsgAntwort"_qs, qint32(s.MsgAntwort)},
        {u"Modus"_qs, s.Modus},
        {u"AktZeile"_qs, s.AktZeile},
        {u"FehlerZaehler"_qs, qint32(s.FehlerZaehler)},
        {u"TabelleLaedt"_qs, s.TabelleLaedt},
        {u"SuchAufrufer"_qs, qint32(s.SuchAufrufer)},
        {u"KontextZeileOK"_qs, s.KontextZeileOK},
        {u"NachReport"_qs, s.NachReport},
        {u"AusSuche"_qs, s.AusSuche},
        {u"LetzterKlappZustand"_qs, s.LetzterKlappZustand},
        {u"AktBarItem"_qs, s.AktBarItem ? s.AktBarItem->key() : QString()},
    };
    const auto found = values.find(name);
    return found == values.end() ? QString() : CStr(*found);
}
