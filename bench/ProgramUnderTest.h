#pragma once

#include "Clock.h"
#include "MsgBox.h"

#include <QApplication>
#include <QString>

/// The day on which all benchmarks run.
constexpr int benchYear = 2026;
constexpr int benchMonth = 3;

/// The toolkit, the look and the clock of a benchmark; to be made first.
class BenchDesk {
public:
    BenchDesk(int& argc, char** argv, MessageBoxes& boxes);

private:
    class FixedClock final : public Clock {
    public:
        QDateTime now() const override { return QDate(benchYear, benchMonth, 14).startOfDay(); }
    };

    QApplication m_application;
    FixedClock m_clock;
};

/// Nobody sits in front of a benchmark: a box would be a fault of it.
class NoBoxes final : public MessageBoxes {
public:
    MsgBoxResult show(const QString& text, int style, const QString& title) override;
};

/// A program folder with 30 kinds of fish, 12 waters and so many catches of so many in the month of the
/// clock; the others are spread over the months and years before.
void makeFolderWithCatches(const QString& folder, int catches, int ofThisMonth);

/// Types name and password of the delivered user into the login and presses its OK.
void logIn();
