#pragma once

#include "Value.h"

class TextPool;

// A value without its kind in eight bytes, for large tables: a number, a day, or the place of a text in the
// TextPool.

quint64 packedValue(const Value& value, TextPool& texts);
Value unpackedValue(Value::Kind kind, quint64 word, const TextPool& texts);
