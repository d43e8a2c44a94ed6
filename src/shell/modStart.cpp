#include "modStart.h"

#include "Bereiche.h"
#include "Clock.h"
#include "Eroef.h"
#include "ErrorTail.h"
#include "Kalendernamen.h"
#include "KontaktUebers.h"
#include "Login.h"
#include "Main.h"
#include "Meldungen.h"
#include "MsgBox.h"
#include "Screens.h"
#include "Session.h"
#include "SqlText.h"
#include "Toolbar.h"
#include "modNavigation.h"
#include "modSicherung.h"
#include "modTools.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace modStart {

namespace {

void setzeBenutzer(const QString& name) {
    session().Benutzer = name;
    the<Main>().StatusBar1->setPanelText(4, name);
}

/// Sizes were given in twips, fifteen to a pixel.
constexpr int twips(int count) { return count / 15; }

void tellEnd(const QString& text, const QString& title = u"Uferwart"_s) {
    MsgBox(text, vbCritical, title);
    unload<Main>();
}

void SetzeFensterGroesse() {
    constexpr int firstWidth = 1000;
    the<Main>().resize(firstWidth, twips(8625));
    the<Main>().ButtnBar->resize(the<Main>().ButtnBar->width(), twips(7695));
}

/// Removes the items and menus that the user's group may not use. `gruppe` must be open at the group's row.
void WendeRechteAn(const Recordset& gruppe) {
    const auto denied = [&](const QString& right) { return gruppe.Fields(right).Value() != Value(true); };
    for (const Bereich& bereich : bereiche())
        if (bereich.hatTaste() && denied(bereich.recht)) modNavigation::entferne(bereich.key);
    if (denied(u"KontListe"_s)) the<KontaktUebers>().Toolbar1->setKeyEnabled(u"tbMitglList"_s, false);
}

/// Checks name and password. On success also writes the status bar and applies the rights.
bool Login(const QString& name, const QString& passwort) {
    bool valid = false;
    withErrorTail(u"modStart"_s, u"Login"_s, [&](ErrorTail& step) {
        Recordset gruppe;
        step([&] {
            gruppe =
                oeffneAbfrage(u"SELECT * FROM Gruppen WHERE GNr = (SELECT GNr FROM Benutzer WHERE Name = "_s +
                              quoted(name) + u" AND Passwort = "_s + quotedSecret(passwort) + u")"_s);
        });
        if (step.test([&] { return gruppe.RecordCount() == 0; })) {
            MsgBox(u"Anmeldung fehlgeschlagen, bitte versuchen Sie es erneut!"_s, vbCritical, u"UFERWART"_s);
        } else {
            setzeBenutzer(name);
            step([&] { WendeRechteAn(gruppe); });
            valid = true;
        }
        step([&] { gruppe.Close(); });
    });
    return valid;
}

/// Fills all grids of all screens, once.
void LadeStammdaten() {
    session().TabelleLaedt = true;
    for (const Bereich& bereich : ladefolge()) bereich.lade();
    session().TabelleLaedt = false;
}

void ZeigeFangjahr() { the<Main>().StatusBar1->setPanelText(8, QString::number(session().AktJahr)); }

/// Offers the repair. Repaired or not, no user is logged in afterwards: the frame is open with an empty bar,
/// and the user starts the program again.
void askForRepair() {
    unload<::Login>();
    modNavigation::LeereButtnBar();
    setzeBenutzer(QString());
    if (!RepariereAufWunsch()) return tellEnd(u"Uferwart beendet sich jetzt !"_s);
    if (isLoaded<Main>()) the<Main>().Show();
}

void startFailed(const RuntimeError& error) {
    switch (error.number) {
    case RuntimeError::databaseNotFound.number:
        return tellEnd(
            u"ACHTUNG: Datenbank nicht gefunden ! Bitte stellen Sie sicher das sich die Datenbank im \n\r"_s +
                u"im Root - Verzeichnis von Uferwart befindet (z.B: C:\\...\\Uferwart\\uw01.mdb) ! "_s +
                u"Uferwart beendet sich jetzt !"_s,
            u"Runtime - Error: %1"_s.arg(error.number));
    case RuntimeError::wrongPassword.number:
        return tellEnd(u"ACHTUNG: Datenbank - Passwort nicht korrekt ! Uferwart beendet sich jetzt !"_s);
    default:
        return askForRepair();
    }
}

/// Shows the start-up picture and waits until the window system has painted it.
void zeigeEroef() {
    constexpr int longestMilliseconds = 300;
    Eroef& picture = the<Eroef>();
    picture.Show();
    QElapsedTimer waited;
    waited.start();
    const QWindow* window = picture.windowHandle();
    while (window && !window->isExposed() && !waited.hasExpired(longestMilliseconds))
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    picture.repaint();
}

void continueAfterLogin() {
    the<::Login>().Hide();
    zeigeEroef();
    SetzeDatumsVariablen();
    if (!KontrolliereSystemJahr()) {
        unload<Eroef>();
        if (session().Beschaedigt) return askForRepair();
        unload<Main>();
        unload<::Login>();
        SchliesseDatenbank();
        return;
    }
    LadeStammdaten();
    ZeigeFangjahr();
    unload<Eroef>();
    the<Main>().Show();
    modNavigation::zeigeErstesFenster();
    unload<::Login>();
    session().Angemeldet = true;
}

} // namespace

void StarteUferwart() {
    try {
        OeffneDatenbank();
        if (!modSicherung::DatenbankIstHeil()) throw runtimeError(RuntimeError::damagedFile, u"uw01.mdb"_s);
        modNavigation::InitButtnBar();
        SetzeFensterGroesse();
        the<Main>().Hide();
        the<::Login>().Show();
    } catch (const RuntimeError& error) {
        startFailed(error);
    }
}

bool RepariereAufWunsch() {
    if (!modRun::frage(u"ACHTUNG: Datenbank konnte nicht geöffnet werden. Soll Uferwart versuchen die "_s
                       u"Datenbank zu reparieren?"_s))
        return false;
    modTools::RepariereDatenbank();
    return true;
}

void Anmelden() {
    ::Login& screen = the<::Login>();
    if (screen.txtBenutzer->text().isEmpty()) return screen.txtBenutzer->setFocus();
    if (Login(screen.txtBenutzer->text(), screen.txtPassw->text())) return continueAfterLogin();
    // If the table of users is damaged, no user would get as far as the menu with the repair.
    if (session().Beschaedigt) return askForRepair();
    screen.txtBenutzer->setText(QString());
    screen.txtPassw->setText(QString());
    screen.txtBenutzer->setFocus();
}

void SetzeDatumsVariablen() {
    const QDate date = today();
    // WochentagName() counts from Sunday.
    session().AktWochentag = modRun::WochentagName(date.dayOfWeek() % 7 + 1);
    session().AktTag = static_cast<qint16>(date.day());
    session().AktMonat = modRun::ErmittleMonatsname(date.month());
    session().AktJahr = static_cast<qint16>(date.year());
    session().Startjahr = session().AktJahr;
    session().AktMonatNr = static_cast<qint16>(date.month());
}

} // namespace modStart
