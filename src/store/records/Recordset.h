#pragma once

#include "Value.h"

#include <QStringList>
#include <memory>
#include <vector>

enum RecordsetType { dbOpenTable = 1, dbOpenDynaset = 2 };

namespace cursors {
class Cursor;
}

/// A cursor over a table or over the result of a SELECT. A value with shared state: copies speak of the same
/// cursor, the last one closes it. Any use of an empty or closed one is error 91; reading without a current
/// row is 3021; an unknown field name is 3265. Names compare without regard to case.
class Recordset {
public:
    /// One field of a cursor. Reads the row that is current at the moment of asking, so it can be fetched
    /// once before a loop.
    class Field {
    public:
        /// Error 3021 without a current row, 91 when the cursor has been closed.
        ::Value Value() const;

    private:
        friend class Recordset;
        Field(std::shared_ptr<cursors::Cursor> cursor, int column)
            : m_cursor(std::move(cursor))
            , m_column(column) {}
        std::shared_ptr<cursors::Cursor> m_cursor;
        int m_column;
    };

    Recordset() = default;
    explicit Recordset(std::shared_ptr<cursors::Cursor> cursor);

    /// Orders a table cursor by an index. "PrimaryKey" is the only one there is; others are error 3015.
    void Index(const QString& name);
    /// Goes to the row whose key equals the value; "=" is the only comparison. Without a hit NoMatch is true
    /// and there is no current row, as after a Seek that fails. Needs Index first (3019).
    void Seek(const QString& comparison, const Value& key);
    bool NoMatch() const;

    // After a move that fails the cursor is at its end.
    void MoveFirst(); ///< 3021 on an empty cursor
    void MoveLast();  ///< 3021 on an empty cursor
    void MoveNext();  ///< 3021 when already at the end
    bool Eof() const;
    bool Bof() const;
    /// Rows of the table, counted at each call, or, of a query, rows reached so far: 0 only if there is none.
    qint32 RecordCount() const;
    /// Zero-based place of the current row; -1 without one. In a table the rows before it are counted at each
    /// call.
    qint32 AbsolutePosition() const;

    Field Fields(const QString& name) const;
    /// All of them, in the order of the table or of the SELECT.
    std::vector<Field> Fields() const;
    QStringList FieldNames() const;

    void AddNew();
    void Edit(); ///< needs a current row (3021)
    /// Sets a field of the copy buffer; 3020 without AddNew or Edit before it.
    void Collect(const QString& name, const Value& value);
    Value Collect(const QString& name) const { return Fields(name).Value(); }
    /// Writes the buffer. After AddNew the current row stays what it was before.
    void Update();
    void Delete();
    /// Ends the cursor. If it was the last one that has written, this is where the user action reaches the
    /// disk, and where a failure to do so is reported.
    void Close();
    /// Ends the cursor and takes the user action back, as the end of a cursor that has written and was never
    /// closed does. Throws what has undone the action already.
    void Abandon();

private:
    cursors::Cursor& cursor() const;
    std::shared_ptr<cursors::Cursor> m_cursor;
};
