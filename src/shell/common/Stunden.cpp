#include "Stunden.h"

#include "Conversions.h"
#include "ErrorTail.h"
#include "Format.h"

using namespace Qt::StringLiterals;

double ErmittleStunden(qint32 knr, qint32 jahr) {
    double stunden = 0;
    withErrorTail(u"modArbeit"_s, u"ErmittleStunden"_s, [&](ErrorTail& step) {
        leseWert(step,
                 u"SELECT SUM(ArbStd) FROM Arbeit WHERE KNr = "_s + QString::number(knr) + u" AND Jahr = "_s +
                     QString::number(jahr),
                 [&](const Value& summe) {
                     if (!summe.isNull()) stunden = CDbl(summe);
                 });
    });
    return stunden;
}

double BerechneSaldo(double gearbeitet, double pflicht) {
    return CDbl(Format(gearbeitet - pflicht, stundenMuster()));
}

QString stundenMuster() { return u"###0.00"_s; }
