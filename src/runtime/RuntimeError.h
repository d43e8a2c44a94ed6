#pragma once

#include <QString>

/// A failed statement: the number and the German words that a user of such a program knows.
/// Thrown by value; the routines' error tail shows both and goes on with the next statement.
struct RuntimeError {
    int number = 0;
    QString description;

    /// A kind of error. Several kinds may share a number. %1 in the text stands for a subject.
    struct Kind {
        int number;
        QStringView text;
    };
    bool is(const Kind& kind) const { return number == kind.number; }

    // Values, objects and files.
    static constexpr Kind overflow{6, u"Überlauf"};
    static constexpr Kind outOfMemory{7, u"Nicht genügend Speicher"};
    static constexpr Kind outOfRange{9, u"Index außerhalb des gültigen Bereichs"};
    static constexpr Kind typesDiffer{13, u"Typen unverträglich"};
    static constexpr Kind fileNotFound{53, u"Datei nicht gefunden"};
    static constexpr Kind diskFull{61, u"Datenträger voll"};
    static constexpr Kind accessDenied{70, u"Zugriff verweigert"};
    static constexpr Kind pathFailed{75, u"Fehler beim Zugriff auf Pfad/Datei"};
    static constexpr Kind folderNotMade{75, u"Der Ordner %1 kann nicht angelegt werden."};
    static constexpr Kind fileNotMade{75, u"Die Datei %1 kann nicht angelegt werden."};
    static constexpr Kind pathNotFound{76, u"Pfad nicht gefunden"};
    static constexpr Kind objectNotSet{91, u"Objektvariable oder With-Blockvariable nicht festgelegt"};
    static constexpr Kind nullUsed{94, u"Unzulässige Verwendung von Null"};
    static constexpr Kind badPropertyValue{380, u"Ungültiger Eigenschaftswert"};
    static constexpr Kind readOnlyProperty{
        383, u"Eigenschaft kann nicht gesetzt werden, sie ist schreibgeschützt"};
    static constexpr Kind programNotReached{429, u"Objekterstellung durch ActiveX-Komponente nicht möglich"};
    static constexpr Kind noSuchProperty{438, u"Objekt unterstützt diese Eigenschaft oder Methode nicht"};
    static constexpr Kind foreignException{440, u"%1"};
    static constexpr Kind printerFailed{482, u"Druckerfehler"};

    // The database and its records.
    static constexpr Kind reserved{3000,
                                   u"Reservierter Fehler (%1); es gibt keine Meldung für diesen Fehler."};
    static constexpr Kind noEncryption{3000, u"Die Datenbankbibliothek kann nicht verschlüsseln."};
    static constexpr Kind badArgument{3001, u"Ungültiges Argument."};
    static constexpr Kind noSuchIndex{3015, u"Index '%1' ist kein Index in dieser Tabelle."};
    static constexpr Kind noIndexSet{3019, u"Operation ist ohne einen aktuellen Index ungültig."};
    static constexpr Kind notEditing{3020, u"Update oder CancelUpdate ohne AddNew oder Edit."};
    static constexpr Kind noCurrentRecord{3021, u"Kein aktueller Datensatz."};
    static constexpr Kind duplicateKey{
        3022,
        u"Die Änderungen an der Tabelle konnten nicht vorgenommen werden, da sie zu doppelten Werten im "
        u"Index, im Primärschlüssel oder in der Beziehung führen würden."};
    static constexpr Kind databaseNotFound{3024, u"Datei '%1' nicht gefunden."};
    static constexpr Kind noDiskSpace{3026, u"Nicht genügend Speicherplatz auf dem Datenträger."};
    static constexpr Kind readOnly{
        3027, u"Aktualisieren nicht möglich. Datenbank oder Objekt ist schreibgeschützt."};
    static constexpr Kind wrongPassword{3031, u"Kein gültiges Kennwort."};
    static constexpr Kind noTransaction{
        3034, u"Es wurde versucht, eine Transaktion zu bestätigen oder rückgängig zu machen, ohne dass eine "
              u"begonnen wurde."};
    static constexpr Kind diskFailed{3043, u"Datenträger- oder Netzwerkfehler."};
    static constexpr Kind badPath{
        3044,
        u"'%1' ist kein gültiger Pfad. Stellen Sie sicher, dass der Pfad richtig geschrieben ist und dass "
        u"Sie mit dem Server verbunden sind, auf dem sich die Datei befindet."};
    static constexpr Kind fileInUse{3045,
                                    u"Datei '%1' kann nicht verwendet werden; sie wird bereits verwendet."};
    static constexpr Kind cannotOpen{
        3051, u"Datei '%1' kann nicht geöffnet werden. Sie ist von einem anderen Benutzer exklusiv geöffnet, "
              u"oder Sie haben nicht die Berechtigung, ihre Daten anzuzeigen."};
    static constexpr Kind cannotBeRepaired{3056, u"Datenbank '%1' kann nicht repariert werden."};
    static constexpr Kind nullKey{3058, u"Index oder Primärschlüssel kann keinen Nullwert enthalten."};
    static constexpr Kind textTooLong{
        3163, u"Das Feld '%1' ist zu klein für die Datenmenge, die Sie hinzufügen wollten. Fügen Sie weniger "
              u"Daten ein."};
    static constexpr Kind fieldNotUpdatable{3164, u"Feld kann nicht aktualisiert werden."};
    static constexpr Kind recordDeleted{3167, u"Datensatz ist gelöscht."};
    static constexpr Kind fileReplaced{
        3197,
        u"Die Datenbank wurde inzwischen durch eine andere ersetzt, etwa von einem zweiten Uferwart. Bitte "
        u"beenden Sie Uferwart und starten Sie es neu."};
    static constexpr Kind databaseExists{3204, u"Datenbank '%1' existiert bereits."};
    static constexpr Kind folderHasDatabase{3204, u"Im Ordner %1 gibt es schon eine uw01.mdb."};
    static constexpr Kind notSupported{3251, u"Operation wird für diesen Objekttyp nicht unterstützt."};
    static constexpr Kind lockedByOther{
        3260, u"Aktualisieren nicht möglich; momentan durch einen anderen Benutzer gesperrt."};
    static constexpr Kind itemNotFound{3265, u"Element '%1' in dieser Auflistung nicht gefunden."};
    static constexpr Kind nullInField{3314, u"Das Feld darf keinen Nullwert enthalten."};
    static constexpr Kind damagedFile{3343, u"Unbekanntes Datenbankformat '%1'."};

    // SELECT statements.
    static constexpr Kind missingParameter{
        3061, u"%1 Parameter wurden erwartet, aber es wurden zu wenig Parameter übergeben."};
    static constexpr Kind badExpression{3075, u"Syntaxfehler in Abfrageausdruck '%1'."};
    static constexpr Kind operatorExpected{3075,
                                           u"Syntaxfehler (fehlender Operator) in Abfrageausdruck '%1'."};
    static constexpr Kind misplacedComma{3075, u"Syntaxfehler (Komma) in Abfrageausdruck '%1'."};
    static constexpr Kind badText{3075, u"Syntaxfehler in Zeichenfolge in Abfrageausdruck '%1'."};
    static constexpr Kind badDate{3075, u"Syntaxfehler in Datum in Abfrageausdruck '%1'."};
    static constexpr Kind tableNotFound{
        3078,
        u"Die Eingabetabelle oder Abfrage '%1' wurde nicht gefunden. Stellen Sie sicher, dass sie existiert "
        u"und ihr Name richtig geschrieben ist."};
    static constexpr Kind tooManyRows{
        3354, u"Höchstens ein Datensatz kann von dieser Unterabfrage zurückgegeben werden."};
    static constexpr Kind tooComplex{3360, u"Abfrage ist zu komplex."};
    static constexpr Kind criteriaDiffer{3464, u"Datentypen in Kriterienausdruck unverträglich."};
};

/// An error of this kind. Where the text could name a subject, it is worded without one.
RuntimeError runtimeError(const RuntimeError::Kind& kind);

/// An error of this kind, with the subject in place of %1.
RuntimeError runtimeError(const RuntimeError::Kind& kind, const QString& subject);
