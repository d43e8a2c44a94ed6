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

/// Answers messages with OK and questions with No.
class Nodding : public MessageBoxes {
public:
    MsgBoxResult show(const QString& text, int style, const QString& title) override;
};

/// Ends the benchmark at any message box, as none is expected.
class NoBoxes final : public MessageBoxes {
public:
    MsgBoxResult show(const QString& text, int style, const QString& title) override;
};

/// The environment of a benchmark: Qt, theme, clock, message boxes and club. Construct it first. Arguments:
/// the folder of the clubs that bench/run has made, each named by its size, and the size to use.
class BenchDesk {
public:
    BenchDesk(int& argc, char** argv, MessageBoxes& boxes);

    ClubSize size() const { return m_size; }
    /// A copy of the program folder of this size, free to change. The same folder at each call.
    QString club(ClubSize size);
    QString club() { return club(m_size); }

private:
    QApplication m_application;
    QtPrintDialogs m_printing;
    QString m_clubs;
    ClubSize m_size;
    QTemporaryDir m_copies;
};

/// Types name and password of the delivered user into the login and presses its OK.
void logIn();
