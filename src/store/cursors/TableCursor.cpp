#include "TableCursor.h"

#include "Conversions.h"

#include <limits>

namespace cursors {

TableCursor::TableCursor(const std::shared_ptr<Connection>& connection, const TableSpec& table)
    : Cursor(connection, connection->rowsOf(table))
    , m_table(table) {
    if (goTo(std::numeric_limits<qint64>::min())) moveTo(Place::Row);
}

bool TableCursor::goTo(qint64 firstRow) {
    m_rows->reset();
    m_rows->bind(1, firstRow);
    return m_rows->step();
}

void TableCursor::begin(qint64 firstRow) {
    const bool found = goTo(firstRow);
    moveTo(found ? Place::Row : Place::Empty);
    requireRow();
}

void TableCursor::moveFirst() {
    moveTo(Place::After);
    begin(std::numeric_limits<qint64>::min());
}

void TableCursor::moveLast() {
    moveTo(Place::After);
    m_rows->reset();
    // 0 without any row, which is not found either.
    begin(number("SELECT MAX(rowid) FROM %1"));
}

void TableCursor::moveNext() {
    if (place() != Place::Deleted) requireRow();
    moveTo(Place::After);
    if (m_rows->step()) moveTo(Place::Row);
}

qint64 TableCursor::number(QByteArray select, qint64 parameter) const {
    const Loan statement = connection().statement(select.replace("%1", quotedName(m_table.name)));
    statement->bind(1, parameter);
    statement->step();
    return statement->integer(0);
}

qint32 TableCursor::recordCount() const { return static_cast<qint32>(number("SELECT COUNT(*) FROM %1")); }

qint32 TableCursor::absolutePosition() const {
    if (place() != Place::Row) return -1;
    return static_cast<qint32>(number("SELECT COUNT(*) FROM %1 WHERE rowid < ?1", m_rows->integer(0)));
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
