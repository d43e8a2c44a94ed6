#pragma once

#include <QString>
#include <functional>

namespace cursors {
class Connection;
}

/// The bytes of a key themselves: deriving them from a password would be most of the time of these tests.
QString rawKey();
/// The first cell that a statement gives.
QString answer(cursors::Connection& file, const QByteArray& select);

enum class End { Done, Failed, Killed };

/// Does the work, which tells whether it went well, in a process of its own.
End inOwnProcess(const std::function<bool()>& work);
void killThisProcess();

/// What a process does to meet its end, and a run that does so first.
using Preparation = std::function<void()>;
using PreparedRun = std::function<End(const Preparation&)>;

/// Repeats a run, killed at each call with which the database library changes a file: before the call, and
/// in its midst. `look` sees what it has left. Returns how often.
int killAtEachFileCall(const PreparedRun& run, const std::function<void()>& look);
