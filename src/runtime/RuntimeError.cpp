#include "RuntimeError.h"

#include <QStringView>
#include <algorithm>
#include <array>

namespace {

struct Description {
    int number;
    QStringView text;
};

constexpr auto descriptions = std::to_array<Description>({
    {6, u"Überlauf"},
    {7, u"Nicht genügend Speicher"},
    {9, u"Index außerhalb des gültigen Bereichs"},
    {13, u"Typen unverträglich"},
    {53, u"Datei nicht gefunden"},
    {61, u"Datenträger voll"},
    {70, u"Zugriff verweigert"},
    {75, u"Fehler beim Zugriff auf Pfad/Datei"},
    {76, u"Pfad nicht gefunden"},
    {91, u"Objektvariable oder With-Blockvariable nicht festgelegt"},
    {93, u"Ungültiges Suchmuster"},
    {94, u"Unzulässige Verwendung von Null"},
    {380, u"Ungültiger Eigenschaftswert"},
    {383, u"Eigenschaft kann nicht gesetzt werden, sie ist schreibgeschützt"},
    {429, u"Objekterstellung durch ActiveX-Komponente nicht möglich"},
    {438, u"Objekt unterstützt diese Eigenschaft oder Methode nicht"},
    {3001, u"Ungültiges Argument."},
    {3015, u"Index '%1' ist kein Index in dieser Tabelle."},
    {3019, u"Operation ist ohne einen aktuellen Index ungültig."},
    {3020, u"Update oder CancelUpdate ohne AddNew oder Edit."},
    {3021, u"Kein aktueller Datensatz."},
    {3022,
     u"Die Änderungen an der Tabelle konnten nicht vorgenommen werden, da sie zu doppelten Werten im Index, "
     u"im Primärschlüssel oder in der Beziehung führen würden."},
    {3024, u"Datei '%1' nicht gefunden."},
    {3026, u"Nicht genügend Speicherplatz auf dem Datenträger."},
    {3027, u"Aktualisieren nicht möglich. Datenbank oder Objekt ist schreibgeschützt."},
    {3031, u"Kein gültiges Kennwort."},
    {3044,
     u"'%1' ist kein gültiger Pfad. Stellen Sie sicher, dass der Pfad richtig geschrieben ist und dass Sie "
     u"mit dem Server verbunden sind, auf dem sich die Datei befindet."},
    {3045, u"Datei '%1' kann nicht verwendet werden; sie wird bereits verwendet."},
    {3051,
     u"Datei '%1' kann nicht geöffnet werden. Sie ist von einem anderen Benutzer exklusiv geöffnet, oder "
     u"Sie haben nicht die Berechtigung, ihre Daten anzuzeigen."},
    {3056, u"Datenbank '%1' kann nicht repariert werden."},
    {3061, u"%1 Parameter wurden erwartet, aber es wurden zu wenig Parameter übergeben."},
    {3075, u"Syntaxfehler in Abfrageausdruck: %1"},
    {3078,
     u"Die Eingabetabelle oder Abfrage '%1' wurde nicht gefunden. Stellen Sie sicher, dass sie existiert "
     u"und ihr Name richtig geschrieben ist."},
    {3163,
     u"Das Feld '%1' ist zu klein für die Datenmenge, die Sie hinzufügen wollten. Fügen Sie weniger Daten "
     u"ein."},
    {3167, u"Datensatz ist gelöscht."},
    {3204, u"Datenbank '%1' existiert bereits."},
    {3260, u"Aktualisieren nicht möglich; momentan durch einen anderen Benutzer gesperrt."},
    {3265, u"Element '%1' in dieser Auflistung nicht gefunden."},
    {3343, u"Unbekanntes Datenbankformat '%1'."},
    {3354, u"Höchstens ein Datensatz kann von dieser Unterabfrage zurückgegeben werden."},
    {3360, u"Abfrage ist zu komplex."},
    {3464, u"Datentypen in Kriterienausdruck unverträglich."},
});

static_assert(std::ranges::is_sorted(descriptions, {}, &Description::number));

QString descriptionOf(int number) {
    const auto found = std::ranges::lower_bound(descriptions, number, {}, &Description::number);
    if (found == descriptions.end() || found->number != number)
        return QStringLiteral("Anwendungs- oder objektdefinierter Fehler");
    return found->text.toString();
}

} // namespace

RuntimeError runtimeError(int number) {
    QString description = descriptionOf(number);
    for (const QStringView subject : {u" '%1'", u": %1", u"'%1' ", u"%1 "})
        description.remove(subject.toString());
    return {number, description};
}

RuntimeError runtimeError(int number, const QString& subject) {
    return {number, descriptionOf(number).replace(QStringLiteral("%1"), subject)};
}
