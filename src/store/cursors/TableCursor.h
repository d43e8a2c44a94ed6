#pragma once

#include "Cursor.h"

namespace cursors {

/// A cursor over all rows of a table in the order of their row numbers, which are their keys. One statement
/// serves both to seek and to walk: Seek reads the first row from the key on and compares.
class TableCursor final : public Cursor {
public:
    TableCursor(const std::shared_ptr<Connection>& connection, const TableSpec& table);

    void moveFirst() override;
    void moveLast() override;
    void moveNext() override;
    qint32 recordCount() const override;
    qint32 absolutePosition() const override;
    void useIndex(const QString& name) override;
    void seek(const QString& comparison, const Value& key) override;
    bool noMatch() const override { return m_noMatch; }

private:
    bool goTo(qint64 firstRow);
    void begin(qint64 firstRow);
    /// The result of a SELECT from the table, which is named %1.
    qint64 number(QByteArray select, qint64 parameter = 0) const;

    const TableSpec& m_table;
    bool m_indexed = false;
    bool m_noMatch = false;
};

} // namespace cursors
