#include "Cursor.h"

#include <utility>

namespace cursors {

Cursor::Cursor(std::shared_ptr<Connection> connection)
    : m_connection(std::move(connection)) {
    m_connection->add(this);
}

Cursor::~Cursor() {
    try {
        leave(End::Abandon);
    } catch (const RuntimeError&) {
        // The failed write has thrown this error before.
    }
}

void Cursor::close() {
    releaseRows();
    leave(End::Commit);
}

void Cursor::abandon() {
    releaseRows();
    leave(End::Abandon);
}

void Cursor::leave(End end) {
    const auto ended = std::exchange(m_connection, nullptr);
    if (ended == nullptr) return;
    ended->remove(this);
    const bool hasWritten = m_writer.has_value();
    m_writer.reset();
    if (!hasWritten) return;
    end == End::Commit ? ended->transaction().leave() : ended->transaction().abandon();
}

void Cursor::moveTo(Place place) {
    m_place = place;
    m_buffer.end();
    m_written.end();
}

RuntimeError Cursor::noRow() const {
    return runtimeError(m_place == Place::Deleted ? RuntimeError::recordDeleted
                                                  : RuntimeError::noCurrentRecord);
}

Value Cursor::value(int column) {
    if (m_buffer.mode() == CopyBuffer::Mode::Adding) return m_buffer.initial(fieldOfColumn(column));
    requireRow();
    const bool unchanged =
        m_buffer.mode() == CopyBuffer::Mode::Idle && m_written.mode() == CopyBuffer::Mode::Idle;
    if (unchanged) return storedValue(column);
    if (!m_connection->transaction().isIntact()) m_written.end();
    const int field = fieldOfColumn(column);
    for (const CopyBuffer* buffer : {&m_buffer, &m_written}) {
        if (buffer->mode() == CopyBuffer::Mode::Idle) continue;
        if (const Value* known = buffer->find(field)) return *known;
    }
    return storedValue(column);
}

void Cursor::useIndex(const QString&) { throw runtimeError(RuntimeError::notSupported); }

void Cursor::seek(const QString&, const Value&) { throw runtimeError(RuntimeError::notSupported); }

const TableSpec& Cursor::requireTarget() const {
    if (target() == nullptr) throw runtimeError(RuntimeError::readOnly);
    return *target();
}

void Cursor::addNew() { m_buffer.begin(CopyBuffer::Mode::Adding, requireTarget()); }

void Cursor::edit() {
    requireRow();
    m_buffer.begin(CopyBuffer::Mode::Editing, requireTarget());
}

void Cursor::collect(const QString& name, const Value& value) {
    if (m_buffer.mode() == CopyBuffer::Mode::Idle) throw runtimeError(RuntimeError::notEditing);
    const int field = fieldOfColumn(columnIndex(name));
    if (field < 0) throw runtimeError(RuntimeError::readOnly);
    m_buffer.set(field, value);
}

/// A changed key is also the row's number from then on.
qint64 Cursor::currentRow() {
    const bool keyed = requireTarget().keyed && m_written.mode() != CopyBuffer::Mode::Idle;
    const Value* key = keyed ? m_written.find(0) : nullptr;
    return key != nullptr ? key->number() : storedRow();
}

RowWriter& Cursor::writer() {
    if (m_writer) {
        m_connection->transaction().requireIntact();
        return *m_writer;
    }
    m_connection->transaction().join();
    return m_writer.emplace(*m_connection, requireTarget());
}

template<typename Write>
void Cursor::write(Write write) {
    RowWriter& rows = writer();
    try {
        write(rows);
    } catch (const RuntimeError& error) {
        m_connection->transaction().noteFailure(error);
        throw;
    }
}

void Cursor::update() {
    switch (m_buffer.mode()) {
    case CopyBuffer::Mode::Idle:
        throw runtimeError(RuntimeError::notEditing);
    case CopyBuffer::Mode::Adding:
        write([this](RowWriter& rows) { rows.insert(m_buffer); });
        break;
    case CopyBuffer::Mode::Editing:
        write([this, row = currentRow()](RowWriter& rows) { rows.update(row, m_buffer); });
        if (m_written.mode() == CopyBuffer::Mode::Idle) m_written.begin(CopyBuffer::Mode::Editing, *target());
        m_written.take(m_buffer);
        break;
    }
    m_buffer.end();
}

void Cursor::remove() {
    requireRow();
    write([row = currentRow()](RowWriter& rows) { rows.remove(row); });
    moveTo(Place::Deleted);
    afterRemove();
}

} // namespace cursors
