#include "Cursor.h"

#include <algorithm>
#include <utility>

namespace cursors {

namespace {

QByteArray insertSql(const TableSpec& table) {
    QByteArrayList names;
    for (const FieldSpec& field : table.fields) names += quotedName(field.name);
    const QByteArray parameters = QByteArray(", ?").repeated(names.size()).sliced(2);
    return "INSERT INTO " + quotedName(table.name) + " (" + names.join(", ") + ") VALUES (" + parameters +
           ')';
}

QByteArray changeSql(const TableSpec& table, const std::vector<int>& fields) {
    QByteArrayList assignments;
    for (const int field : fields)
        assignments += quotedName(table.fields[static_cast<size_t>(field)].name) + " = ?";
    return "UPDATE " + quotedName(table.name) + " SET " + assignments.join(", ") + " WHERE rowid = ?";
}

} // namespace

Cursor::Cursor(std::shared_ptr<Connection> connection, Loan rows)
    : m_rows(std::move(rows))
    , m_connection(std::move(connection)) {
    m_connection->add(this);
}

Cursor::~Cursor() {
    try {
        abandon();
    } catch (const RuntimeError&) {
        // The failed write has thrown this error before.
    }
}

void Cursor::close() { leave(&WriteTransaction::leave); }

void Cursor::abandon() { leave(&WriteTransaction::abandon); }

void Cursor::leave(void (WriteTransaction::*end)()) {
    for (Loan* loan : {&m_rows, &m_insert, &m_change}) loan->reset();
    const auto ended = std::exchange(m_connection, nullptr);
    if (ended == nullptr) return;
    ended->remove(this);
    if (m_hasWritten) (ended->transaction().*end)();
}

int Cursor::columnIndex(const QString& name) const {
    const auto& columns = m_rows->plan.columns;
    // Called for each cell of a printed list, so names of another length are not compared.
    const auto isNamed = [&](const dialect::ResultColumn& column) {
        return column.name.size() == name.size() && column.name.compare(name, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::ranges::find_if(columns, isNamed);
    if (found == columns.end()) throw runtimeError(RuntimeError::itemNotFound, name);
    return static_cast<int>(found - columns.begin());
}

QStringList Cursor::columnNames() const {
    QStringList names;
    for (const dialect::ResultColumn& column : m_rows->plan.columns) names.append(column.name);
    return names;
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
    if (m_buffer.mode() == CopyBuffer::Mode::Adding) return m_buffer.initial(fieldOf(column));
    requireRow();
    const bool unchanged =
        m_buffer.mode() == CopyBuffer::Mode::Idle && m_written.mode() == CopyBuffer::Mode::Idle;
    if (unchanged) return storedValue(column);
    if (!m_connection->transaction().isIntact()) m_written.end();
    const int field = fieldOf(column);
    for (const CopyBuffer* buffer : {&m_buffer, &m_written}) {
        if (buffer->mode() == CopyBuffer::Mode::Idle) continue;
        if (const Value* known = buffer->find(field)) return *known;
    }
    return storedValue(column);
}

void Cursor::useIndex(const QString&) { throw runtimeError(RuntimeError::notSupported); }

void Cursor::seek(const QString&, const Value&) { throw runtimeError(RuntimeError::notSupported); }

const TableSpec& Cursor::requireTarget() const {
    const TableSpec* table = m_rows->plan.editable;
    if (table == nullptr) throw runtimeError(RuntimeError::readOnly);
    return *table;
}

void Cursor::addNew() { m_buffer.begin(CopyBuffer::Mode::Adding, requireTarget()); }

void Cursor::edit() {
    requireRow();
    m_buffer.begin(CopyBuffer::Mode::Editing, requireTarget());
}

void Cursor::collect(const QString& name, const Value& value) {
    if (m_buffer.mode() == CopyBuffer::Mode::Idle) throw runtimeError(RuntimeError::notEditing);
    m_buffer.set(fieldOf(columnIndex(name)), value);
}

/// A changed key is also the row's number from then on.
qint64 Cursor::currentRow() {
    const bool keyed = requireTarget().keyed && m_written.mode() != CopyBuffer::Mode::Idle;
    const Value* key = keyed ? m_written.find(0) : nullptr;
    return key != nullptr ? key->number() : storedRow();
}

/// Runs a statement with these values in the transaction of the user's action. Error 3167 if it does not find
/// the row whose number is its last parameter.
void Cursor::write(const Loan& statement, const std::vector<Value>& values, std::optional<qint64> row) {
    WriteTransaction& action = m_connection->transaction();
    m_hasWritten ? action.requireIntact() : action.join();
    m_hasWritten = true;
    try {
        int position = 0;
        for (const Value& value : values) statement->bind(++position, value);
        if (row) statement->bind(++position, *row);
        statement->run();
        if (row && m_connection->changes() != 1) throw runtimeError(RuntimeError::recordDeleted);
    } catch (const RuntimeError& error) {
        action.noteFailure(error);
        throw;
    }
}

/// Error 3022 for a key that exists, 3058 for a Null key.
void Cursor::insert() {
    const TableSpec& table = requireTarget();
    std::vector<Value> values(table.fields.size());
    for (size_t field = 0; field < values.size(); ++field)
        values[field] = m_buffer.initial(static_cast<int>(field));
    // SQLite would choose a number for a Null key.
    const bool isKeyGiven = table.keyed && table.fields.front().kind != FieldKind::AutoNumber;
    if (isKeyGiven && values.front().isNull()) throw runtimeError(RuntimeError::nullKey);
    if (!m_insert) m_insert = m_connection->statement(insertSql(table));
    write(m_insert, values, std::nullopt);
}

/// Writes the fields that are set.
void Cursor::change(qint64 row) {
    const TableSpec& table = requireTarget();
    std::vector<int> fields;
    std::vector<Value> values;
    for (int field = 0; field < static_cast<int>(table.fields.size()); ++field) {
        const Value* value = m_buffer.find(field);
        if (value == nullptr) continue;
        fields.push_back(field);
        values.push_back(*value);
    }
    if (fields.empty()) return;
    if (!m_change || fields != m_changed) m_change = m_connection->statement(changeSql(table, fields));
    m_changed = fields;
    write(m_change, values, row);
}

void Cursor::update() {
    switch (m_buffer.mode()) {
    case CopyBuffer::Mode::Idle:
        throw runtimeError(RuntimeError::notEditing);
    case CopyBuffer::Mode::Adding:
        insert();
        break;
    case CopyBuffer::Mode::Editing:
        change(currentRow());
        if (m_written.mode() == CopyBuffer::Mode::Idle)
            m_written.begin(CopyBuffer::Mode::Editing, requireTarget());
        m_written.take(m_buffer);
        break;
    }
    m_buffer.end();
}

void Cursor::remove() {
    requireRow();
    const qint64 row = currentRow();
    write(m_connection->statement("DELETE FROM " + quotedName(requireTarget().name) + " WHERE rowid = ?"), {},
          row);
    moveTo(Place::Deleted);
    afterRemove();
}

} // namespace cursors
