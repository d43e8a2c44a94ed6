#include "Kalendernamen.h"

#include "MsgBox.h"

#include <array>

namespace modRun {

namespace {

void tellWrongMonth(const QString& inserted) {
    MsgBox(u"FEHLER: Monatsbezeichnung fehlerhaft ! Es wird Standartmonat - "_qs + inserted +
               u" - eingesetzt.\n\rBitte ändern Sie den Datensatz um diesen fehler zu vermeiden !"_qs,
           vbCritical);
}

} // namespace

const QStringList& Monatsnamen() {
    static const QStringList names = {u"Januar"_qs,    u"Februar"_qs, u"März"_qs,     u"April"_qs,
                                      u"Mai"_qs,       u"Juni"_qs,    u"Juli"_qs,     u"August"_qs,
                                      u"September"_qs, u"Oktober"_qs, u"November"_qs, u"Dezember"_qs};
    return names;
}

QString ErmittleMonatsname(qint32 number) {
    if (number >= 1 && number <= Monatsnamen().size()) return Monatsnamen()[number - 1];
    tellWrongMonth(u"Januar"_qs);
    return u"Januar"_qs;
}

qint16 ErmittleMonatsNr(const QString& name) {
    const qsizetype place = Monatsnamen().indexOf(name);
    if (place >= 0) return static_cast<qint16>(place + 1);
    tellWrongMonth(u"1"_qs);
    return 1;
}

QString WochentagName(int number) {
    static const std::array<QString, 7> names = {u"Sonntag"_qs,  u"Montag"_qs,     u"Dienstag"_qs,
                                                 u"Mittwoch"_qs, u"Donnerstag"_qs, u"Freistag"_qs,
                                                 u"Samstag"_qs};
    return number >= 1 && number <= 7 ? names[static_cast<std::size_t>(number - 1)] : QString();
}

} // namespace modRun
