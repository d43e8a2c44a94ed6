#pragma once

#include "Value.h"

class TextPool;

// A value without its kind in one word of eight bytes, for tables of many: a number, a day, or the place of a
// text among those that are held once.

quint64 packedValue(const Value& value, TextPool& texts);
Value unpackedValue(Value::Kind kind, quint64 word, const TextPool& texts);
