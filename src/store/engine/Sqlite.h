#pragma once

// The library's header declares its key functions only when told that it was built with encryption.
#ifndef SQLITE_HAS_CODEC
#define SQLITE_HAS_CODEC 1
#endif
#include <sqlite3.h>

namespace engine {} // namespace engine
