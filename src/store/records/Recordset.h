#pragma once

#include "Value.h"

#include <QStringList>
#include <memory>
#include <vector>

enum RecordsetType { dbOpenTable = 1, dbOpenDynaset = 2 };

namespace cursors {
class Cursor;
}

/// A cursor over a table or the result of a SELECT. Copies share the cursor; the end of the last copy closes
/// it. Using an empty or closed one is error 91, reading without a current row 3021, an unknown field name
/// 3265. Names compare without regard to case.
class Recordset {
public:
    /// One field of a cursor. Always reads the current row, so it can be fetched once before a loop.
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

    /// Chooses the index for Seek in a table. "PrimaryKey" is the only one; another name is error 3015.
    void Index(const QString& name);
    /// Goes to the row with this key. `comparison` must be "=". Without a hit, and after an error, NoMatch is
    /// true and there is no current row. Error 3019 if Index was not called before.
    void Seek(const QString& comparison, const Value& key);
    bool NoMatch() const;

    // A failed move leaves the cursor at its end.
    void MoveFirst(); ///< 3021 on an empty cursor
    void MoveLast();  ///< 3021 on an empty cursor
    void MoveNext();  ///< 3021 if already at the end
    bool Eof() const;
    bool Bof() const;
    /// For a table the number of rows, counted at each call. For a query the number of rows reached so far,
    /// which is 0 only if there are none.
    qint32 RecordCount() const;
    /// Zero-based place of the current row, -1 without one. In a table each call counts the rows before it.
    qint32 AbsolutePosition() const;

    Field Fields(const QString& name) const;
    /// All fields in the order of the table or SELECT.
    std::vector<Field> Fields() const;
    QStringList FieldNames() const;

    void AddNew();
    void Edit(); ///< needs a current row (3021)
    /// Sets a field of the copy buffer. Error 3020 without AddNew or Edit.
    void Collect(const QString& name, const Value& value);
    Value Collect(const QString& name) const { return Fields(name).Value(); }
    /// Writes the copy buffer. After AddNew the current row stays the same.
    void Update();
    void Delete();
    /// Closes the cursor. If it was the last open one with writes, commits the user's action and throws if
    /// that fails.
    void Close();
    /// Closes the cursor and takes the user's action back, as for a cursor with writes that was never closed.
    /// If a failure has undone the action already, throws that failure.
    void Abandon();

private:
    cursors::Cursor& cursor() const;
    std::shared_ptr<cursors::Cursor> m_cursor;
};
