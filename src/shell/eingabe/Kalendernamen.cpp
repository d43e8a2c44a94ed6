#include "Kalendernamen.h"

#include "MsgBox.h"

#include <array>

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
    static const QStringList names = {u"Januar"_s,    u"Februar"_s, u"März"_s,     u"April"_s,
                                      u"Mai"_s,       u"Juni"_s,    u"Juli"_s,     u"August"_s,
                                      u"September"_s, u"Oktober"_s, u"November"_s, u"Dezember"_s};
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
    static const std::array<QString, 7> names = {u"Sonntag"_s,    u"Montag"_s,   u"Dienstag"_s, u"Mittwoch"_s,
                                                 u"Donnerstag"_s, u"Freistag"_s, u"Samstag"_s};
    return number >= 1 && number <= 7 ? names[static_cast<std::size_t>(number - 1)] : QString();
}

} // namespace modRun
