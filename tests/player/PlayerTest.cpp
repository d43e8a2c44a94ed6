#include "Player.h"
#include "EventGuard.h"

#include <QLoggingCategory>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

// tests/scenarios have the commands that succeed. These are the failures and their messages.

namespace {

/// Runs a scenario that begins at the login. Returns what it writes to the standard error output.
std::string told(const QString& script) {
    const QTemporaryDir folder;
    QLoggingCategory::setFilterRules(u"default.warning=false"_s); // Qt's, of the offscreen platform
    testing::internal::CaptureStderr();
    {
        PlayedProgram program(folder.path() + u"/programm"_s, folder.path());
        setEventsEnded(false); // an earlier test has ended them
        Player player(parseScript(u"start\n"_s + script), program, {u"probe.txt"_s, false});
        player.play();
    }
    return testing::internal::GetCapturedStderr();
}

/// A command that fails, and its message.
struct Fault {
    QString line;
    QString got;
};

std::string tale(const std::vector<Fault>& faults, int firstLine) {
    QString text;
    for (const Fault& fault : faults)
        text += u"probe.txt:%1: %2\n  expected: that it can be done\n  got:      %3\n"_s.arg(firstLine++)
                    .arg(fault.line, fault.got);
    return text.toStdString();
}

TEST(Player, TellsEveryFailureAndPlaysTheRest) {
    const std::vector<Fault> faults = {
        {u"nope 1"_s, u"there is no such command"_s},
        {u"click Nirgends.cmd"_s, u"there is no screen Nirgends"_s},
        {u"press Fangbuch.tbSpeichern"_s, u"Fangbuch.tbSpeichern is not visible"_s},
        {u"press Fangauswertung.tbSuch zweimal"_s, u"2 words behind the name, which it does not take"_s},
        {u"click \"Fangauswertung.tbSuch"_s, u"a quote that is not closed"_s},
        {u"sh \"echo weh; exit 3\""_s, u"the shell gave 3: weh"_s},
    };
    QString script = u"login Admin \"\"\nnav Fangauswertung\n"_s;
    for (const Fault& fault : faults) script += fault.line + u'\n';
    EXPECT_EQ(told(script), tale(faults, 4));
}

TEST(Player, FailsForWhatIsLeftOver) {
    const auto tells = [](const QString& script, const char* what) {
        const std::string said = told(script);
        EXPECT_NE(said.find(what), std::string::npos) << said;
    };
    const QString asked = u"login Admin \"\"\nnav Fangauswertung\npress Fangauswertung.tbSuch"_s;
    tells(asked, "no question without a queued answer");
    tells(u"answer no\n"_s + asked, "no box that has not been printed");
    tells(asked + u"\nbox information"_s, "the boxes were: yesno information");
    tells(u"answer no"_s, "no answer left over");
    tells(u"dialog cancel"_s, "no dialog left over");
}

TEST(Player, ReachesNothingBehindAModalScreenNorAfterTheEnd) {
    EXPECT_EQ(told(uR"(login Admin ""
nav Arbeit
modal
= SuchKont
press Arbeit.tbBuchen
close SuchKont
close Main
show Arbeit.lblKNr
running
= no)"_s),
              R"(probe.txt:6: press Arbeit.tbBuchen
  expected: that it can be done
  got:      Arbeit.tbBuchen lies behind the modal screen SuchKont
probe.txt:9: show Arbeit.lblKNr
  expected: that it can be done
  got:      the program has ended
)");
}

} // namespace
