#pragma once

#include "Clock.h"
#include "ClubFile.h"
#include "MsgBox.h"
#include "QtPrintDialogs.h"

#include <QApplication>
#include <QString>
#include <QTemporaryDir>

/// The day on which all benchmarks run.
constexpr int benchYear = 2026;
constexpr int benchMonth = 3;

/// Acknowledges what is told, and says no to what is asked.
class Nodding : public MessageBoxes {
public:
    MsgBoxResult show(const QString& text, int style, const QString& title) override;
};

/// Nobody sits in front of a benchmark: a box is a fault of it.
class NoBoxes final : public MessageBoxes {
public:
    MsgBoxResult show(const QString& text, int style, const QString& title) override;
};

/// The toolkit, the look, the clock and the club of a benchmark; to be made first. Its arguments: the folder
/// with the clubs that bench/run has made, each named by its size, and the size to run at.
class BenchDesk {
public:
    BenchDesk(int& argc, char** argv, MessageBoxes& boxes);

    ClubSize size() const { return m_size; }
    /// A program folder of that size to do with as one likes; the same one each time.
    QString club(ClubSize size);
    QString club() { return club(m_size); }

private:
    class FixedClock final : public Clock {
    public:
        QDateTime now() const override { return QDate(benchYear, benchMonth, 14).startOfDay(); }
    };

    QApplication m_application;
    FixedClock m_clock;
    QtPrintDialogs m_printing;
    QString m_clubs;
    ClubSize m_size;
    QTemporaryDir m_copies;
};

/// Types name and password of the delivered user into the login and presses its OK.
void logIn();
