#pragma once

#include "RuntimeError.h"

#include <QByteArray>

struct sqlite3;

namespace engine {

/// The last failure on a connection as the error that the user sees. The one place where the library's codes
/// are given their numbers.
RuntimeError sqliteError(sqlite3* database);
/// As above where only the code is known.
RuntimeError sqliteError(int extendedCode);
/// As above for a statement that could not be prepared: the file lacks a table (3078) or a field (3061) of
/// it, or it has more parts than the library can follow (3360).
RuntimeError prepareError(sqlite3* database);

/// How a function of ours that runs inside a statement reports an error of its own: this text as its message.
QByteArray errorMark(const RuntimeError& error);

} // namespace engine
