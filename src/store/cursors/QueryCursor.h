#pragma once

#include "Cursor.h"

#include <variant>

namespace cursors {

/// A cursor over the result of a SELECT. Rows stream from the running statement; only the first and the last
/// row are kept while current. A result of one row is thus read to its end at once, and the statement blocks
/// no other process's writes while a screen shows the row.
class QueryCursor final : public Cursor {
public:
    QueryCursor(const std::shared_ptr<Connection>& connection, QStringView select);

    void moveFirst() override;
    void moveLast() override;
    void moveNext() override;
    qint32 recordCount() const override;
    qint32 absolutePosition() const override { return place() == Place::Row ? m_position : -1; }

protected:
    Value storedValue(int column) override;
    qint64 storedRow() override;
    void afterRemove() override;

private:
    /// The row on which the running statement is.
    enum class Stream : quint8 { CurrentRow, NextRow, Nothing };

    /// A row kept apart from the statement. An unreadable field throws its error when it is read.
    struct HeldRow {
        qint64 number;
        std::vector<std::variant<Value, RuntimeError>> values;
    };

    void start();
    void countRest();
    void catchUp();
    void walkTo(qint32 position);
    void hold();
    bool isAt(qint32 position) const { return place() == Place::Row && m_position == position; }

    Stream m_stream = Stream::Nothing;
    std::optional<HeldRow> m_held; ///< the current row unless the statement is on it
    qint32 m_reached = 0;
    qint32 m_position = -1;
    bool m_complete = false; ///< m_reached is the number of all rows
};

} // namespace cursors
