#pragma once

#include "Schema.h"
#include "Value.h"

#include <optional>
#include <vector>

namespace cursors {

/// The fields of a row that is being added or changed, before they are written.
class CopyBuffer {
public:
    enum class Mode : quint8 { Idle, Adding, Editing };

    Mode mode() const { return m_mode; }
    void begin(Mode mode, const TableSpec& table);
    void end() { m_mode = Mode::Idle; }

    /// Converts to the field's kind as the routines expect it of an assignment: error 13 or 6 for what does
    /// not fit, 3164 for an AutoNumber. A field that refuses keeps what it had.
    void set(int field, const Value& value);
    /// Takes over what is set in another buffer of the same table.
    void take(const CopyBuffer& other);
    /// Null if the field has not been set.
    const Value* find(int field) const;
    /// What a new row gets: the set value, or what a field without one is given.
    Value initial(int field) const;

    const TableSpec& table() const { return *m_table; }

private:
    Mode m_mode = Mode::Idle;
    const TableSpec* m_table = nullptr;
    std::vector<std::optional<Value>> m_values;
};

} // namespace cursors
