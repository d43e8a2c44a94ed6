#include "QueryCursor.h"

QueryCursor::QueryCursor(std::shared_ptr<Connection> connection, QStringView select)
    : Cursor(std::move(connection))
    , m_rows(this->connection().select(select)) {
    m_complete = !m_rows->step();
    if (m_complete) return;
    m_reached = 1;
    m_position = 0;
    moveTo(Place::Row);
}

int QueryCursor::columnIndex(const QString& name) const {
    const auto& columns = m_rows.plan().columns;
    for (size_t i = 0; i < columns.size(); ++i)
        if (columns[i].name.compare(name, Qt::CaseInsensitive) == 0) return static_cast<int>(i);
    throw runtimeError(3265, name);
}

QStringList QueryCursor::columnNames() const {
    QStringList names;
    for (const ResultColumn& column : m_rows.plan().columns) names.append(column.name);
    return names;
}

int QueryCursor::fieldOfColumn(int column) const {
    return m_rows.plan().columns[static_cast<size_t>(column)].field;
}

Value QueryCursor::storedValue(int column) {
    catchUp();
    const SelectPlan& plan = m_rows.plan();
    return m_rows->column(column + plan.firstColumn(), plan.columns[static_cast<size_t>(column)].kind);
}

qint64 QueryCursor::storedRow() {
    catchUp();
    return m_rows->integer(0);
}

void QueryCursor::restart() {
    m_rows->reset();
    m_behind = false;
    m_position = 0;
    const bool found = m_rows->step();
    moveTo(found ? Place::Row : Place::After);
    requireRow();
}

void QueryCursor::moveFirst() {
    if (m_reached == 0) throw runtimeError(3021);
    const bool isThere = place() == Place::Row && m_position == 0 && !m_behind;
    if (isThere)
        moveTo(Place::Row);
    else
        restart();
}

void QueryCursor::countRest() {
    m_reached = m_position + 1;
    while (m_rows->step()) ++m_reached;
    m_complete = true;
}

void QueryCursor::moveLast() {
    if (m_reached == 0) throw runtimeError(3021);
    const bool isThere = m_complete && place() == Place::Row && m_position == m_reached - 1;
    if (!isThere) {
        if (!m_complete) countRest();
        m_behind = true;
        m_position = m_reached - 1;
    }
    moveTo(Place::Row);
}

void QueryCursor::moveNext() {
    if (place() != Place::Deleted) requireRow();
    const bool found = !m_behind && m_rows->step();
    m_behind = false;
    ++m_position;
    m_complete = m_complete || !found;
    if (found && m_position >= m_reached) m_reached = m_position + 1;
    moveTo(found ? Place::Row : Place::After);
}

/// Nobody may ask for the last row's fields, as most only want the count; who does waits for a second walk.
void QueryCursor::catchUp() {
    if (!m_behind) return;
    m_rows->reset();
    for (qint32 row = 0; row <= m_position; ++row)
        if (!m_rows->step()) throw runtimeError(3021);
    m_behind = false;
}

void QueryCursor::afterRemove() {
    --m_reached;
    --m_position;
}
