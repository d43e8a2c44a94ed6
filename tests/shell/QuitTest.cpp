#include "Conversions.h"
#include "FixedClock.h"
#include "Login.h"
#include "OpenFolder.h"
#include "Program.h"
#include "ProgramFolder.h"
#include "QtMessageBoxes.h"
#include "Screens.h"
#include "TextBox.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int oldYear = 2025;

/// A folder in last year's state, with one member who has paid and worked.
class QuitTest : public ::testing::Test {
protected:
    QuitTest() {
        makeProgramFolder(m_folder.path(), oldYear, false);
        add(u"Kontakt"_s, {{u"KategoNr"_s, 1}, {u"Nachname"_s, u"Aal"_s}});
        add(u"Mitglied"_s, {{u"knr"_s, 1}, {u"Bezahlt"_s, true}, {u"Befreit"_s, false}});
        m_clock.setDay(QDate(oldYear + 1, 1, 1));
        setMessageBoxes(&m_boxes);
    }

    ~QuitTest() override { setMessageBoxes(nullptr); }

    void add(const QString& table, const std::vector<std::pair<QString, Value>>& fields) {
        Database file = openFolder(m_folder.path());
        Recordset row = file.OpenRecordset(table, dbOpenTable);
        row.AddNew();
        for (const auto& [field, value] : fields) row.Collect(field, value);
        row.Update();
        row.Close();
    }

    /// Logs in, answers message boxes with Yes, and quits the application at the `last`th one.
    void playAndQuitAtBox(int last) {
        Program program(m_folder.path());
        QTimer hand;
        int boxes = 0;
        QObject::connect(&hand, &QTimer::timeout, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            // The open question about the year locks nothing: others can save.
            if (++boxes == 1) {
                EXPECT_NO_THROW(add(u"Fisch"_s, {{u"FName"_s, u"Aal"_s}}));
            }
            if (boxes == last) return QCoreApplication::quit();
            QAbstractButton* yes = box->button(QMessageBox::Yes);
            (yes ? yes : box->button(QMessageBox::Ok))->click();
        });
        program.start();
        the<Login>().txtBenutzer->setText(u"Admin"_s);
        QTimer::singleShot(0, [] { the<Login>().cmdOK->click(); });
        hand.start(5);
        QApplication::exec();
        EXPECT_EQ(boxes, last);
        EXPECT_FALSE(program.isRunning());
    }

    QString content() {
        Database file = openFolder(m_folder.path());
        const auto one = [&](const QString& select) { return CStr(only(file, select)); };
        return one(u"SELECT MAX(FJahr) FROM System"_s) + u' ' + one(u"SELECT COUNT(ArbNr) FROM Arbeit"_s) +
               u' ' + one(u"SELECT COUNT(KNr) FROM Mitglied WHERE Bezahlt = True"_s);
    }

    QTemporaryDir m_folder;
    FixedClock m_clock;
    QtMessageBoxes m_boxes;
};

TEST_F(QuitTest, OverABoxOfTheYearChangeLeavesTheOldYear) {
    constexpr int boxes = 4;
    for (int box = 1; box <= boxes; ++box) {
        playAndQuitAtBox(box);
        EXPECT_EQ(content(), u"2025 0 1"_s) << box;
    }
}

} // namespace
