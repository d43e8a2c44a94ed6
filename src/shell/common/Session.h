#pragma once

#include "DBEngine.h"

#include <QPointer>
#include <array>

class BarItem;

/// Values shared by all routines. Any routine may read and write them, since there is only one thread.
struct Session {
    Workspace AktWorkspace;
    Database AktDatenbank; ///< open from start to end except during compact and repair

    qint16 AktTag = 0;     ///< day of the month at login
    QString AktWochentag;  ///< name of the weekday at login
    qint16 AktMonatNr = 0; ///< 1 to 12
    QString AktMonat;
    qint16 AktJahr = 0;   ///< current fishing year; screens set their chosen year while they load a list
    qint16 Startjahr = 0; ///< calendar year at login; no screen changes it

    int MsgAntwort = 0;       ///< answer of the last question: 6 yes, 7 no
    qint16 FehlerZaehler = 0; ///< errors in the current routine
    /// LadeStammdaten is running: an empty list shows no message box, choosing a year or month loads nothing.
    bool TabelleLaedt = false;
    qint16 SuchAufrufer = 0;      ///< opener of the search: 0 the contact overview, 1 the work ledger
    bool KontextZeileOK = false;  ///< the last press on a grid hit a data row
    bool NachReport = false;      ///< a report was shown: the next Form_Activate does not reload the lists
    QPointer<BarItem> AktBarItem; ///< navigation item last made current

    QString Benutzer;         ///< name of the user who is logged in; the status bar shows it
    bool Angemeldet = false;  ///< the start is complete: the data is loaded and the frame is shown
    bool Beschaedigt = false; ///< a statement has met a damaged page, or the record of `System` is missing
    bool Beendet = false;     ///< the program has ended; routines still running show no message boxes

    /// Fishing year and hours owed, as in the grid of the parameters.
    Value FJahr;
    Value PflichtStd;
    /// The club's name, street, postal code, town and telephone as last saved, for Info and the reports.
    std::array<QString, 5> Anschrift;
};

Session& session();

/// The folder that holds the program, its database file and the folders beside it.
const QString& programFolder();

/// Begins a session with this program folder. Resets all values.
void beginSession(const QString& programFolder);
