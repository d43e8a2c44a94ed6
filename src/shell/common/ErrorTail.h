#pragma once

#include "Datenbank.h"
#include "RuntimeError.h"

#include <QScopedValueRollback>

/// Error handling of all routines that use the database or a grid. An error in a statement shows a message
/// box, and the routine goes on with the next statement:
///
///     withErrorTail(u"modBasis"_s, u"SpeicherFisch"_s, [](ErrorTail& step) {
///         step([&] { fisch = oeffneTabelle(u"Fisch"_s); });
///         ...
///     });
///
/// The fifth error leaves the routine after a last message box. The count is in the session, so a called
/// routine with its own withErrorTail resets the caller's count too. Statements that can't fail need no step.
/// Write records through `Datensatz`.
class ErrorTail {
public:
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
        bool truth = true;
        (*this)([&] { truth = condition(); });
        return truth;
    }

    /// Runs `body` for each row from the current one to the last. If Eof() fails, `body` runs as for a row.
    template<typename Body>
    void forEachRow(Recordset& rows, Body&& body) {
        while (test([&] { return !rows.Eof(); })) {
            body();
            (*this)([&] { rows.MoveNext(); });
        }
    }

private:
    friend void withErrorTail(const QString&, const QString&, const std::function<void(ErrorTail&)>&);
    ErrorTail(const QString& module, const QString& routine)
        : m_module(module)
        , m_routine(routine) {}

    /// Shows the message box of an error and sets Session::Beschaedigt if the file is damaged. At the fifth
    /// error shows the last message box and leaves the routine. After the end of the program leaves it
    /// without a message box.
    void report(const RuntimeError& error);

    const QString& m_module;
    const QString& m_routine;
};

/// Runs `body` as the routine named in its message boxes, with a count of 0.
void withErrorTail(const QString& module, const QString& routine,
                   const std::function<void(ErrorTail&)>& body);

/// Restores the error count at the end of its scope. Use it in a loop that calls routines with their own
/// withErrorTail: they reset the count, and an error in every row would never reach the fifth.
struct KeptErrorCount : QScopedValueRollback<qint16> {
    KeptErrorCount();
};
