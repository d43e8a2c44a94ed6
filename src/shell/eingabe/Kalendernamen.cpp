#include "Kalendernamen.h"

#include "MsgBox.h"

using namespace Qt::StringLiterals;

namespace modRun {

namespace {

void tellWrongMonth(const QString& inserted) {
    MsgBox(u"FEHLER: Monatsbezeichnung fehlerhaft ! Es wird Standartmonat - "_s + inserted +
               u" - eingesetzt.\n\rBitte ändern Sie den Datensatz um diesen fehler zu vermeiden !"_s,
           vbCritical);
}

} // namespace

const QStringList& Monatsnamen() {
    static const QStringList names =
        u"Januar Februar März April Mai Juni Juli August September Oktober November Dezember"_s.split(u' ');
    return names;
}

QString ErmittleMonatsname(qint32 number) {
    if (number >= 1 && number <= Monatsnamen().size()) return Monatsnamen()[number - 1];
    tellWrongMonth(u"Januar"_s);
    return u"Januar"_s;
}

qint16 ErmittleMonatsNr(const QString& name) {
    const qsizetype place = Monatsnamen().indexOf(name);
    if (place >= 0) return static_cast<qint16>(place + 1);
    tellWrongMonth(u"1"_s);
    return 1;
}

QString WochentagName(int number) {
    return u"Sonntag Montag Dienstag Mittwoch Donnerstag Freistag Samstag"_s.split(u' ').value(number - 1);
}

} // namespace modRun
