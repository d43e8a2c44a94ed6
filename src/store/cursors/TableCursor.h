#pragma once

#include "Cursor.h"

namespace cursors {

/// A cursor over all rows of a table in the order of their row numbers, which are their keys.
class TableCursor final : public Cursor {
public:
    TableCursor(std::shared_ptr<Connection> connection, const TableSpec& table);

    int columnIndex(const QString& name) const override;
    QStringList columnNames() const override;
    void moveFirst() override;
    void moveLast() override;
    void moveNext() override;
    qint32 recordCount() const override;
    qint32 absolutePosition() const override;
    void useIndex(const QString& name) override;
    void seek(const QString& comparison, const Value& key) override;
    bool noMatch() const override { return m_noMatch; }

protected:
    const TableSpec* target() const override { return &m_table; }
    int fieldOfColumn(int column) const override { return column; }
    Value storedValue(int column) override;
    qint64 storedRow() override { return m_rows->integer(0); }
    void releaseRows() noexcept override { m_rows.giveBack(); }

private:
    bool goTo(qint64 firstRow);

    const TableSpec& m_table;
    /// The rows from a given number on. One statement serves both to seek and to walk: Seek reads the first
    /// row from the key on and compares.
    StatementCache::Loan m_rows;
    bool m_indexed = false;
    bool m_noMatch = false;
};

} // namespace cursors
