#pragma once

// SQLCipher's header declares the key functions only if this macro is defined.
#ifndef SQLITE_HAS_CODEC
#define SQLITE_HAS_CODEC 1
#endif
#include <sqlite3.h>

namespace engine {} // namespace engine
