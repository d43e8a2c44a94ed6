#include "Stunden.h"

#include "Conversions.h"
#include "ErrorTail.h"
#include "Format.h"

using namespace Qt::StringLiterals;

double ErmittleStunden(qint32 knr, qint32 jahr) {
    double stunden = 0;
    withErrorTail(u"modArbeit"_s, u"ErmittleStunden"_s, [&](ErrorTail& step) {
        leseWert(step, u"SELECT SUM(ArbStd) FROM Arbeit WHERE KNr = %1 AND Jahr = %2"_s.arg(knr).arg(jahr),
                 [&](const Value& summe) { stunden = CDbl(summe); });
    });
    return stunden;
}

double BerechneSaldo(double gearbeitet, double pflicht) {
    return CDbl(Format(gearbeitet - pflicht, stundenMuster()));
}

QString stundenMuster() { return u"###0.00"_s; }
