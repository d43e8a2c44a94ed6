#pragma once

#include "DemoDice.h"

#include <QDate>
#include <QPointer>
#include <QStringList>
#include <QVector>

using namespace Qt::StringLiterals;

class DataTable;
class PlayedProgram;
class Screen;
class QMenu;
class QWidget;

/// A user who acts at random. Chooses the next step from all that is visible and usable. The same seed gives
/// the same steps.
class RandomUser {
public:
    RandomUser(PlayedProgram& program, quint32 seed);

    /// The next step, a line of a scenario.
    QString next();
    /// The lines that start the program and log in a user with all rights. They leave the clock alone.
    QStringList comeBack();
    /// The line that sets the clock to the user's date.
    QString setsClock() const { return u"today "_s + m_today.toString(Qt::ISODate); }

    /// The usable screen: the modal one, the one in front of the main window or the one alone.
    static Screen* frontScreen(PlayedProgram& program);

private:
    QString startAgain();
    QString logIn();
    QString roam(Screen& front);
    QString leave(Screen& front);
    QString pressKey(const Screen& front);
    QString chooseFrom(const QMenu& menu);
    QString actOnAny(Screen& front);
    QString actOn(QWidget* control);
    QString fillIn(QWidget* control);
    QString onGrid(DataTable& grid, const QString& name);
    void planToFillIn(Screen& front);

    PlayedProgram& m_program;
    DemoDice m_dice;
    QDate m_today{2026, 3, 14};
    QStringList m_plan; ///< for the screen m_planned
    QPointer<Screen> m_planned;
};
