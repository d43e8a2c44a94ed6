#pragma once

#include "Datenbank.h"
#include "RuntimeError.h"

#include <QString>
#include <utility>

/// The error handling that every routine which touches the database or a grid has in common. A routine is a
/// recipe of statements; an error in one shows the box and the routine goes on with the next:
///
///     withErrorTail(u"modBasis"_s, u"SpeicherFisch"_s, [](ErrorTail& step) {
///         Recordset fisch;
///         step([&] { fisch = oeffneTabelle(u"Fisch"_s); });
///         step([&] { fisch.AddNew(); });
///         ...
///     });
///
/// After four such boxes the fifth error leaves the routine. The count is a session value, so a called
/// routine with a tail of its own sets the caller's count to 0 as well. Statements that can't fail need no
/// step. A routine that writes does so through `Datensatz`.
class ErrorTail {
public:
    ErrorTail(QString module, QString routine)
        : m_module(std::move(module))
        , m_routine(std::move(routine)) {}

    /// Runs one statement. False, after the box, if it failed.
    template<typename Statement>
    bool operator()(Statement&& statement) {
        try {
            statement();
            return true;
        } catch (const RuntimeError& error) {
            report(error);
            return false;
        }
    }

    /// Runs the condition of a branch. After an error in it the next statement is the first in its branch, so
    /// an error counts as true.
    template<typename Condition>
    bool test(Condition&& condition) {
        try {
            return condition();
        } catch (const RuntimeError& error) {
            report(error);
            return true;
        }
    }

    /// Runs `body` for each row from the current one to the last; a failed look at the end counts as a row.
    template<typename Rows, typename Body>
    void forEachRow(Rows& rows, Body&& body) {
        while (test([&] { return !rows.Eof(); })) {
            body();
            (*this)([&] { rows.MoveNext(); });
        }
    }

    /// Thrown by the fifth error, caught by withErrorTail.
    struct LeaveRoutine {};

    /// Sets the session's `Beschaedigt` if the file is damaged. Shows the box; on the fifth error the last
    /// box, and leaves the routine.
    void report(const RuntimeError& error);

private:
    QString m_module;
    QString m_routine;
};

void beginErrorTail();

/// Keeps a routine's count over calls of routines that count for themselves. For loops: a failure that comes
/// with every row would otherwise never reach its fifth box.
class KeptErrorCount {
public:
    KeptErrorCount();
    ~KeptErrorCount();
    KeptErrorCount(const KeptErrorCount&) = delete;
    KeptErrorCount& operator=(const KeptErrorCount&) = delete;

private:
    qint16 m_count;
};

template<typename Routine>
void withErrorTail(const QString& module, const QString& routine, Routine&& body) {
    beginErrorTail();
    ErrorTail step(module, routine);
    try {
        body(step);
    } catch (const ErrorTail::LeaveRoutine&) {
        // The last box has told it; what stands behind in the routine is skipped.
    }
}
