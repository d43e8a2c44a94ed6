#pragma once

#include "Connection.h"
#include "CopyBuffer.h"

#include <QStringList>

namespace cursors {

/// The base of both kinds of cursors: a place, a copy buffer, and a part in the transaction of the user's
/// action. A field of the current row that this cursor has written is read as written, not as stored before.
class Cursor {
public:
    /// The statement gives the rows and tells their columns.
    Cursor(std::shared_ptr<Connection> connection, Loan rows);
    virtual ~Cursor();
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;

    bool isOpen() const { return m_connection != nullptr; }
    /// Closes the cursor. If no other cursor with writes is open, commits the action.
    void close();
    /// Closes the cursor and takes the whole action back. The destructor does the same with an open cursor.
    void abandon();

    /// Error 3265 if there is no such column.
    int columnIndex(const QString& name) const;
    QStringList columnNames() const;
    Value value(int column);

    virtual void moveFirst() = 0;
    virtual void moveLast() = 0;
    virtual void moveNext() = 0;
    bool eof() const { return m_place == Place::Empty || m_place == Place::After; }
    bool bof() const { return m_place == Place::Empty; }
    virtual qint32 recordCount() const = 0;
    virtual qint32 absolutePosition() const = 0;

    // Only table cursors have an index. Others throw error 3251.
    virtual void useIndex(const QString& name);
    virtual void seek(const QString& comparison, const Value& key);
    virtual bool noMatch() const { return false; }

    void addNew();
    void edit();
    void collect(const QString& name, const Value& value);
    void update();
    void remove();

protected:
    /// Nowhere is the place after a Seek without a hit.
    enum class Place : quint8 { Empty, Row, Deleted, Nowhere, After };

    Connection& connection() const { return *m_connection; }
    Place place() const { return m_place; }
    /// Moves and drops unfinished changes. Call moveTo(After) before a step that may fail, so that no stale
    /// row stays current.
    void moveTo(Place place);
    /// Drops unfinished changes without moving.
    void stay() { m_buffer.end(); }
    /// Error 3021 without a current row, 3167 if it was deleted.
    void requireRow() const {
        if (m_place != Place::Row) throw noRow();
    }

    virtual Value storedValue(int column) {
        const dialect::SelectPlan& plan = m_rows->plan;
        return m_rows->column(column + plan.firstColumn(), plan.columns[static_cast<size_t>(column)].kind);
    }
    virtual qint64 storedRow() { return m_rows->integer(0); }
    virtual void afterRemove() {}

    Loan m_rows;

private:
    RuntimeError noRow() const;
    int fieldOf(int column) const { return m_rows->plan.columns[static_cast<size_t>(column)].field; }
    const TableSpec& requireTarget() const;
    qint64 currentRow();
    void insert();
    void change(qint64 row);
    void write(const Loan& statement, const std::vector<Value>& values, std::optional<qint64> row);
    void leave(void (WriteTransaction::*end)());

    std::shared_ptr<Connection> m_connection;
    Place m_place = Place::Empty;
    CopyBuffer m_buffer;
    CopyBuffer m_written; ///< what this cursor has written to the current row
    bool m_hasWritten = false;
    Loan m_insert;
    Loan m_change;
    std::vector<int> m_changed; ///< the fields that m_change writes
};

} // namespace cursors
