#pragma once

#include "Datenbank.h"
#include "RuntimeError.h"

#include <QString>
#include <utility>

/// Error handling of all routines that use the database or a grid. An error in a statement shows a message
/// box, and the routine goes on with the next statement:
///
///     withErrorTail(u"modBasis"_s, u"SpeicherFisch"_s, [](ErrorTail& step) {
///         Recordset fisch;
///         step([&] { fisch = oeffneTabelle(u"Fisch"_s); });
///         step([&] { fisch.AddNew(); });
///         ...
///     });
///
/// The fifth error leaves the routine after a last message box. The count is in the session, so a called
/// routine with its own withErrorTail resets the caller's count too. Statements that can't fail need no step.
/// Write records through `Datensatz`.
class ErrorTail {
public:
    ErrorTail(QString module, QString routine)
        : m_module(std::move(module))
        , m_routine(std::move(routine)) {}

    /// Runs one statement. Returns false after the message box if it failed.
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

    /// Runs the condition of a branch. Returns true after an error: the next statement is the first one in
    /// the branch.
    template<typename Condition>
    bool test(Condition&& condition) {
        try {
            return condition();
        } catch (const RuntimeError& error) {
            report(error);
            return true;
        }
    }

    /// Runs `body` for each row from the current one to the last. If Eof() fails, `body` runs as for a row.
    template<typename Rows, typename Body>
    void forEachRow(Rows& rows, Body&& body) {
        while (test([&] { return !rows.Eof(); })) {
            body();
            (*this)([&] { rows.MoveNext(); });
        }
    }

    /// Thrown by the fifth error, caught by withErrorTail.
    struct LeaveRoutine {};

    /// Shows the message box of an error and sets Session::Beschaedigt if the file is damaged. At the fifth
    /// error shows the last message box and throws LeaveRoutine. After the end of the program throws
    /// LeaveRoutine without a message box.
    void report(const RuntimeError& error);

private:
    QString m_module;
    QString m_routine;
};

/// Sets the session's error count to 0.
void beginErrorTail();

/// Restores the error count at the end of its scope. Use it in a loop that calls routines with their own
/// withErrorTail: they reset the count, and an error in every row would never reach the fifth.
class KeptErrorCount {
public:
    KeptErrorCount();
    ~KeptErrorCount();
    KeptErrorCount(const KeptErrorCount&) = delete;
    KeptErrorCount& operator=(const KeptErrorCount&) = delete;

private:
    qint16 m_count;
};

/// Runs `body` as the routine named in its message boxes, with a count of 0.
template<typename Routine>
void withErrorTail(const QString& module, const QString& routine, Routine&& body) {
    beginErrorTail();
    ErrorTail step(module, routine);
    try {
        body(step);
    } catch (const ErrorTail::LeaveRoutine&) {
        // The message box has been shown. The rest of the routine is skipped.
    }
}
