#pragma once

#include "DBEngine.h"

#include <QPointer>
#include <QString>
#include <array>

class BarItem;

/// The values that all routines share while the program runs. Any routine may read and write them. Safe
/// because there is one thread.
struct Session {
    Workspace AktWorkspace;
    Database AktDatenbank; ///< open from start to end except during compact and repair

    qint16 AktTag = 0;     ///< day of the month at login
    QString AktWochentag;  ///< name of the weekday at login
    qint16 AktMonatNr = 0; ///< 1 to 12
    QString AktMonat;
    qint16 AktJahr = 0;   ///< the year on which a change of year has been settled; lent to the selectors
    qint16 Startjahr = 0; ///< calendar year at login, whatever a selector has left in AktJahr

    int MsgAntwort = 0;           ///< answer of the last question: 6 yes, 7 no
    qint16 FehlerZaehler = 0;     ///< errors in the current routine
    bool TabelleLaedt = false;    ///< LadeStammdaten is running: screens stay quiet
    qint16 SuchAufrufer = 0;      ///< who opened the search: 0 the contact overview, 1 the work ledger
    bool KontextZeileOK = false;  ///< the last press on a grid hit a data row
    bool NachReport = false;      ///< a report was shown: the next activation leaves the lists alone
    QPointer<BarItem> AktBarItem; ///< navigation item last made current

    QString Benutzer;         ///< name of the user who is logged in; the status bar shows it
    bool Angemeldet = false;  ///< the start-up has come to its end: the data is loaded and can be seen
    bool Beschaedigt = false; ///< a statement has met a damaged page, or the record of `System` is missing
    bool Beendet = false;     ///< the program has ended; routines still on the stack tell nobody any more

    /// The year and the hours of the parameters as their list shows them.
    Value FJahr;
    Value PflichtStd;
    /// The club's name, street, postal code, town and telephone as last saved: what Info and the reports
    /// show.
    std::array<QString, 5> Anschrift;
};

Session& session();

/// The folder that holds the program, its database file and the folders beside it.
const QString& programFolder();

/// Begins a new session over a program folder; every value is back at its start.
void beginSession(const QString& folder);
