#include "QueryCursor.h"

#include <algorithm>
#include <utility>

namespace cursors {

QueryCursor::QueryCursor(const std::shared_ptr<Connection>& connection, QStringView select)
    : Cursor(connection, connection->select(select)) {
    start();
}

void QueryCursor::hold() {
    const dialect::SelectPlan& plan = m_rows->plan;
    HeldRow held{.number = plan.editable != nullptr ? m_rows->integer(0) : 0, .values = {}};
    held.values.reserve(plan.columns.size());
    for (int column = 0; column < static_cast<int>(plan.columns.size()); ++column) {
        try {
            held.values.emplace_back(Cursor::storedValue(column));
        } catch (const RuntimeError& error) {
            held.values.emplace_back(error);
        }
    }
    m_held = std::move(held);
}

Value QueryCursor::storedValue(int column) {
    if (m_stream == Stream::CurrentRow) return Cursor::storedValue(column);
    catchUp();
    const auto& value = m_held->values[static_cast<size_t>(column)];
    if (const auto* error = std::get_if<RuntimeError>(&value)) throw *error;
    return std::get<Value>(value);
}

qint64 QueryCursor::storedRow() {
    catchUp();
    return m_held ? m_held->number : m_rows->integer(0);
}

qint32 QueryCursor::recordCount() const { return m_complete ? m_reached : std::max(m_reached, 1); }

void QueryCursor::start() {
    moveTo(Place::After);
    m_rows->reset();
    m_held.reset();
    m_stream = Stream::Nothing;
    m_position = 0;
    const bool found = m_rows->step();
    if (found) {
        hold();
        if (m_rows->step()) m_stream = Stream::NextRow;
    }
    const qint32 known = found ? 1 : 0;
    m_complete = m_complete || m_stream == Stream::Nothing;
    m_reached = m_stream == Stream::Nothing ? known : std::max(m_reached, known);
    moveTo(found ? Place::Row : Place::Empty);
}

void QueryCursor::moveFirst() {
    if (place() == Place::Empty) throw runtimeError(RuntimeError::noCurrentRecord);
    const bool isRead = m_held.has_value() || m_stream == Stream::CurrentRow;
    if (isAt(0) && isRead) return stay();
    start();
    requireRow();
}

void QueryCursor::countRest() {
    qint32 rows = m_position + 1;
    if (m_stream == Stream::NextRow) ++rows;
    if (m_stream == Stream::Nothing) {
        m_rows->reset();
        rows = 0;
    }
    m_stream = Stream::Nothing;
    while (m_rows->step()) ++rows;
    m_reached = rows;
    m_complete = true;
}

void QueryCursor::moveLast() {
    if (place() == Place::Empty) throw runtimeError(RuntimeError::noCurrentRecord);
    if (m_complete && isAt(m_reached - 1)) return stay();
    moveTo(Place::After);
    if (!m_complete) countRest();
    m_held.reset();
    m_stream = Stream::Nothing;
    m_rows->reset();
    m_position = m_reached - 1;
    moveTo(m_reached > 0 ? Place::Row : Place::Empty);
    requireRow();
}

void QueryCursor::moveNext() {
    if (place() != Place::Deleted) requireRow();
    moveTo(Place::After);
    m_held.reset();
    const Stream before = std::exchange(m_stream, Stream::Nothing);
    const bool isStreaming = before == Stream::CurrentRow;
    const bool found = before == Stream::NextRow || (isStreaming && m_rows->step());
    m_complete = m_complete || !found;
    ++m_position;
    if (!found) return;
    m_stream = Stream::CurrentRow;
    m_reached = std::max(m_reached, m_position + 1);
    moveTo(Place::Row);
}

/// Most callers want only the count after MoveLast, so the last row is read on demand, by a second pass.
void QueryCursor::catchUp() {
    if (m_held || m_stream == Stream::CurrentRow) return;
    try {
        walkTo(m_position);
    } catch (const RuntimeError&) {
        // Leave the row, so that reading its other fields does not try again.
        moveTo(m_reached > 0 ? Place::After : Place::Empty);
        throw;
    }
}

void QueryCursor::walkTo(qint32 position) {
    m_rows->reset();
    qint32 found = 0;
    while (found <= position && m_rows->step()) ++found;
    if (found > position) {
        hold();
    } else {
        // Another cursor has deleted rows after they were counted.
        m_reached = found;
    }
    m_rows->reset();
    if (!m_held) throw runtimeError(RuntimeError::noCurrentRecord);
}

void QueryCursor::afterRemove() {
    --m_reached;
    --m_position;
}

} // namespace cursors
