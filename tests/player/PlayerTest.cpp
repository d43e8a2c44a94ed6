#include "Player.h"
#include "ProbeScreens.h"
#include "Screens.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

/// What the player tells on the standard error output of a scenario that is played beside the probe window.
std::string told(const QString& script) {
    const QTemporaryDir folder;
    testing::internal::CaptureStderr();
    {
        PlayedProgram program(folder.path() + u"/programm"_qs, folder.path());
        setEventsEnded(false); // the program of the test before has ended them
        screen<Probe>().Show();
        Player player(parseScript(u"start\n"_qs + script), program, {u"probe.txt"_qs, false});
        player.play();
    }
    return testing::internal::GetCapturedStderr();
}

void expectPlays(const QString& script) { EXPECT_EQ(told(script), ""); }

TEST(Player, TypesThroughTheFiltersAtTheCaretAndReplacesWhereTold) {
    expectPlays(uR"(
type Probe.txtFrei "Ärger €ß"
type Probe.txtFrei " \\ 𝄞"
key Probe Home
type Probe.txtFrei "a"
show Probe.txtFrei
= aÄrger €ß \ 𝄞
set Probe.txtFrei "neu"
show Probe.txtFrei
= neu
set Probe.txtFrei ""
show Probe.txtFrei
= 
type Probe.txtZahl "1a2"
focus Probe.txtFrei
type Probe.txtZahl "34"
type Probe.txtZahl "5"
show Probe.txtZahl
= 345
type Probe.txtNotiz "eins\r\nzwei"
focus Probe.txtFrei
type Probe.txtNotiz "!"
show Probe.txtNotiz
= eins\r\nzwei!
type Probe.cboFrei "Frei"
show Probe.cboFrei
= Frei
focused
= Probe.cboFrei
)"_qs);
}

TEST(Player, ClicksAgainWhereAHandlerHasSentTheFocusAway) {
    expectPlays(uR"(
focus Probe.txtScheu
focused
= Probe.txtFrei
type Probe.txtScheu "x"
show Probe.txtScheu Probe.txtFrei
= x
= 
)"_qs);
    expectPlays(u"type Probe.txtScheu \"x\"\nshow Probe.txtScheu\n= x"_qs);
}

TEST(Player, ChoosesTicksAndTurnsAsAUserDoes) {
    expectPlays(uR"(
choose Probe.cboListe "Eintrag 40"
show Probe.cboListe Probe.lblEreignis
= Eintrag 40
= Wahl Eintrag 40
key Probe F3
choose Probe.cboListe "Eintrag 40"
show Probe.lblEreignis
= Wahl Eintrag 40
choose Probe.cboFrei "Eintrag 2"
show Probe.cboFrei
= Eintrag 2
tick Probe.chkJa off
tick Probe.chkJa on
option Probe.optZwei
show Probe.chkJa Probe.optEins Probe.optZwei Probe.cmdModal
= on
= off
= on
= Los
date Probe.datTag 2005-01-31
show Probe.datTag
= 31.01.2005
tab Probe.tabSeiten 1
show Probe.tabSeiten
= Hinten
key Probe Ctrl+F3
show Probe.lblEreignis
= Strg F3
enabled Probe.cmdAus
= no
answer yes
key Probe F4
boxes
= yesno · Uferwart · Wirklich ?\n\rJa
)"_qs);
}

TEST(Player, GoesOnInsideModalScreensAndBehindThem) {
    expectPlays(uR"(
click Probe.cmdModal
modal
= Innen
type Innen.txtInnen "innen"
show Innen.txtInnen Probe.lblEreignis
= innen
= 
click Innen.cmdTiefer
modal
= Tief
click Tief.cmdZu
modal
= Innen
click Innen.cmdZu
modal
= none
show Probe.lblEreignis
= zurück
type Probe.txtFrei "frei"
show Probe.txtFrei
= frei
open Probe.tblZwei 1/1 1
show Probe.lblEreignis
= open 1/1 1
close Innen
modal
= none
click Probe.cmdModal
click Innen.cmdTiefer
)"_qs);
    EXPECT_EQ(Screens::all().size(), 0) << "a scenario may end inside modal screens";
}

TEST(Player, PressesGridsWhereTold) {
    expectPlays(uR"(
rows Probe.tblZwei
= 0|Firmen
= 1|Leute
rows Probe.tblZwei[1]
= 7|Ärmel
= 8|Zander
count Probe.tblZwei[1]
= 2
show Probe.tblZwei[0,1] Probe.tblZwei[1/0,1]
= Firmen
= Ärmel
down Probe.tblZwei 1/1 1
show Probe.lblEreignis
= down 1 1
down Probe.tblZwei 0 -5
show Probe.lblEreignis
= down 0 -5
down Probe.tblZwei -1 0
show Probe.lblEreignis
= down -1 -1
context Probe.tblZwei 1/0 1
show Probe.lblEreignis
= down 0 1
enabled mnuStumm
= no
visible mnuZweiter
= yes
menu mnuZweiter
show Probe.lblEreignis
= mnuZweiter
context Probe.tblZwei 0 1
type Probe.txtFrei "x"
show Probe.txtFrei
= x
)"_qs);
}

/// A command that fails, with what the player tells of it.
struct Fault {
    QString line;
    QString expected;
    QString got;
};

std::string tale(const std::vector<Fault>& faults, int firstLine) {
    QString text;
    for (const Fault& fault : faults)
        text += u"probe.txt:%1: %2\n  expected: %3\n  got:      %4\n"_qs.arg(firstLine++)
                    .arg(fault.line, fault.expected, fault.got);
    return text.toStdString();
}

TEST(Player, TellsEveryFailureAndPlaysTheRest) {
    const QString done = u"that it can be done"_qs;
    const std::vector<Fault> faults = {
        {u"nope 1"_qs, done, u"there is no such command"_qs},
        {u"click Nirgends.cmd"_qs, done, u"there is no screen Nirgends"_qs},
        {u"click Probe.cmdNichts"_qs, done, u"there is no control Probe.cmdNichts"_qs},
        {u"click Probe.cmdAus"_qs, done, u"Probe.cmdAus is not enabled"_qs},
        {u"click Innen.cmdZu"_qs, done, u"Innen.cmdZu is not visible"_qs},
        {u"choose Probe.txtFrei \"Zander\""_qs, done, u"Probe.txtFrei is no combo box"_qs},
        {u"press Probe.cmdModal zweimal"_qs, done, u"2 words behind the name, which it does not take"_qs},
        {u"click \"Probe.cmdModal"_qs, done, u"a quote that is not closed"_qs},
        {u"type Probe.lblEreignis x"_qs, done, u"Probe.lblEreignis is no text field"_qs},
        {u"show Probe.tblZwei[5,0]"_qs, done, u"error 9: Index außerhalb des gültigen Bereichs"_qs},
        {u"menu mnuFremd"_qs, done, u"there is no menu item mnuFremd"_qs},
        {u"key Probe F99"_qs, done, u"there is no key F99"_qs},
        {u"state Nichts"_qs, done, u"there is no session value Nichts"_qs},
        {u"query \"SELECT nichts\""_qs, done, u"no such column: nichts"_qs},
        {u"sh \"echo weh; exit 3\""_qs, done, u"the shell gave 3: weh"_qs},
        {u"key Probe F4"_qs, u"no question without a queued answer"_qs,
         u"yesno · Uferwart · Wirklich ?\\n\\rJa"_qs},
    };
    QString script;
    for (const Fault& fault : faults) script += fault.line + u'\n';
    setEventsEnded(false);
    screen<Innen>();
    EXPECT_EQ(told(script + u"boxes"_qs), tale(faults, 2));
}

TEST(Player, FailsAtTheEndForWhatIsLeftOver) {
    const std::string unprinted = told(u"answer no\nkey Probe F4"_qs);
    EXPECT_NE(unprinted.find("no box that has not been printed"), std::string::npos) << unprinted;
    const std::string answers = told(u"answer no"_qs);
    EXPECT_NE(answers.find("no answer left over"), std::string::npos) << answers;
    const std::string dialogs = told(u"dialog cancel"_qs);
    EXPECT_NE(dialogs.find("no dialog left over"), std::string::npos) << dialogs;
}

TEST(Player, TellsExpectedAndPrintedLinesOneBelowTheOther) {
    EXPECT_EQ(told(uR"(show Login.lblB Login.lblP
= Passwort:
boxes
= plain
nav Fangbuch
= Fangbuch)"_qs),
              R"(probe.txt:2: show Login.lblB Login.lblP
  expected: Passwort:
  got:      Benutername:
            Passwort:
probe.txt:4: boxes
  expected: plain
  got:      (nothing)
probe.txt:6: nav Fangbuch
  expected: Fangbuch
  got:      a command that prints nothing
)");
}

TEST(Player, ReachesNothingBehindAModalScreenNorAfterTheEnd) {
    EXPECT_EQ(told(uR"(click Probe.cmdModal
click Probe.cmdModal
click Innen.cmdZu
click Login.cmdEsc
show Login.lblB
running
= no)"_qs),
              R"(probe.txt:3: click Probe.cmdModal
  expected: that it can be done
  got:      Probe.cmdModal lies behind the modal screen Innen
probe.txt:6: show Login.lblB
  expected: that it can be done
  got:      the program has ended
)");
}

} // namespace
