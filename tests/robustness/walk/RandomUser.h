#pragma once

#include "DemoDice.h"

#include <QDate>
#include <QPointer>
#include <QStringList>
#include <QVector>

class DataTable;
class PlayedProgram;
class Screen;
class QMenu;
class QWidget;

/// A user without a plan. Says what to do next out of all that can be seen and used at the moment; the same
/// seed says the same.
class RandomUser {
public:
    RandomUser(PlayedProgram& program, quint32 seed);

    /// A line of the scenarios' language.
    QString next();
    /// The lines that start the program and log somebody in who may do everything; they leave the clock
    /// alone.
    QStringList comeBack();
    /// The line that sets the clock to where the user believes it to stand.
    QString setsClock() const { return u"today "_qs + m_today.toString(Qt::ISODate); }

    /// What can be used now: the modal screen, that in front of the frame or the one that stands alone.
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
    QStringList m_plan; ///< for the screen that was in front when it was made
    QPointer<Screen> m_planned;
};
