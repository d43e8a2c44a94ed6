#pragma once

#include "Schema.h"
#include "Value.h"

#include <optional>
#include <vector>

namespace cursors {

/// The fields of a row between AddNew or Edit and Update.
class CopyBuffer {
public:
    enum class Mode : quint8 { Idle, Adding, Editing };

    Mode mode() const { return m_mode; }
    void begin(Mode mode, const TableSpec& table);
    void end() { m_mode = Mode::Idle; }

    /// Converts the value to the field's kind as an assignment does. Error 13 or 6 if it does not fit, 3164
    /// for an AutoNumber; the field then keeps its value.
    void set(int field, const Value& value);
    /// Copies the fields that are set in another buffer of the same table.
    void take(const CopyBuffer& other);
    /// Null if the field has not been set.
    const Value* find(int field) const;
    /// The field's value in a new row: the set value, else False for a Boolean and Null for others.
    Value initial(int field) const;

private:
    Mode m_mode = Mode::Idle;
    const TableSpec* m_table = nullptr;
    std::vector<std::optional<Value>> m_values;
};

} // namespace cursors
