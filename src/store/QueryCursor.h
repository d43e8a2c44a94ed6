#pragma once

#include "Cursor.h"

/// A cursor over the result of a SELECT. Rows stream from the running statement; none is kept.
class QueryCursor final : public Cursor {
public:
    QueryCursor(std::shared_ptr<Connection> connection, QStringView select);

    int columnIndex(const QString& name) const override;
    QStringList columnNames() const override;
    void moveFirst() override;
    void moveLast() override;
    void moveNext() override;
    qint32 recordCount() const override { return m_reached; }
    qint32 absolutePosition() const override { return place() == Place::Row ? m_position : -1; }

protected:
    const TableSpec* target() const override { return m_rows.plan().editable; }
    int fieldOfColumn(int column) const override;
    Value storedValue(int column) override;
    qint64 storedRow() override;
    void afterRemove() override;
    void releaseRows() noexcept override { m_rows.giveBack(); }

private:
    void restart();
    void countRest();
    void catchUp();

    StatementCache::Loan m_rows;
    qint32 m_reached = 0;
    qint32 m_position = -1;
    bool m_complete = false; ///< m_reached is the number of all rows
    /// The cursor is on the last row, but the statement, having counted to the end, is not.
    bool m_behind = false;
};
