#include "TableCursor.h"

#include "Conversions.h"

#include <limits>

namespace cursors {

namespace {

QByteArray rowsSql(const TableSpec& table) {
    QByteArray columns = "rowid";
    for (const FieldSpec& field : table.fields) columns += ", " + quotedName(field.name);
    return "SELECT " + columns + " FROM " + quotedName(table.name) + " WHERE rowid >= ?1 ORDER BY rowid";
}

} // namespace

TableCursor::TableCursor(std::shared_ptr<Connection> connection, const TableSpec& table)
    : Cursor(std::move(connection))
    , m_table(table)
    , m_rows(this->connection().statement(rowsSql(table))) {
    if (goTo(std::numeric_limits<qint64>::min())) moveTo(Place::Row);
}

bool TableCursor::goTo(qint64 firstRow) {
    m_rows->reset();
    m_rows->bind(1, firstRow);
    return m_rows->step();
}

int TableCursor::columnIndex(const QString& name) const {
    const int index = m_table.fieldIndex(name);
    if (index < 0) throw runtimeError(RuntimeError::itemNotFound, name);
    return index;
}

QStringList TableCursor::columnNames() const {
    QStringList names;
    for (const FieldSpec& field : m_table.fields) names.append(field.name.toString());
    return names;
}

Value TableCursor::storedValue(int column) {
    return m_rows->column(column + 1, m_table.fields[static_cast<size_t>(column)].kind);
}

void TableCursor::moveFirst() {
    moveTo(Place::After);
    const bool found = goTo(std::numeric_limits<qint64>::min());
    moveTo(found ? Place::Row : Place::Empty);
    requireRow();
}

void TableCursor::moveLast() {
    moveTo(Place::After);
    m_rows->reset();
    StatementCache::Loan last = connection().statement("SELECT MAX(rowid) FROM " + quotedName(m_table.name));
    last->step();
    const bool found = !last->column(0, FieldKind::Untyped).isNull() && goTo(last->integer(0));
    moveTo(found ? Place::Row : Place::Empty);
    requireRow();
}

void TableCursor::moveNext() {
    if (place() != Place::Deleted) requireRow();
    moveTo(Place::After);
    if (m_rows->step()) moveTo(Place::Row);
}

qint32 TableCursor::recordCount() const {
    StatementCache::Loan count = connection().statement("SELECT COUNT(*) FROM " + quotedName(m_table.name));
    count->step();
    return static_cast<qint32>(count->integer(0));
}

qint32 TableCursor::absolutePosition() const {
    if (place() != Place::Row) return -1;
    StatementCache::Loan before =
        connection().statement("SELECT COUNT(*) FROM " + quotedName(m_table.name) + " WHERE rowid < ?1");
    before->bind(1, m_rows->integer(0));
    before->step();
    return static_cast<qint32>(before->integer(0));
}

void TableCursor::useIndex(const QString& name) {
    if (!m_table.keyed || name.compare(u"PrimaryKey", Qt::CaseInsensitive) != 0)
        throw runtimeError(RuntimeError::noSuchIndex, name);
    m_indexed = true;
}

void TableCursor::seek(const QString& comparison, const Value& key) {
    // Set before anything can fail, so that code after a failed search changes no other row.
    m_noMatch = true;
    moveTo(Place::Nowhere);
    m_rows->reset();
    if (!m_indexed) throw runtimeError(RuntimeError::noIndexSet);
    if (comparison != u"=") throw runtimeError(RuntimeError::badArgument);
    // No key is Null.
    if (key.isNull()) return;
    const qint32 number = CLng(key);
    if (goTo(number) && m_rows->integer(0) == number) {
        m_noMatch = false;
        moveTo(Place::Row);
    } else {
        m_rows->reset();
    }
}

} // namespace cursors
