#pragma once

#include <memory>

/// Keeps other processes from a database file until it is destroyed.
using FileHold = std::shared_ptr<const void>;
