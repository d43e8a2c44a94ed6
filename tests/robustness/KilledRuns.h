#pragma once

#include <QString>
#include <functional>

namespace cursors {
class Connection;
}

/// A key of plain bytes: with a password, the tests would spend most of their time on deriving the key.
QString rawKey();

/// The first cell of a statement's result.
QString answer(cursors::Connection& file, const QByteArray& select);

enum class End { Done, Failed, Killed };
/// Runs `work` in a process of its own. It returns whether it succeeded.
End inOwnProcess(const std::function<bool()>& work);
void killThisProcess();
