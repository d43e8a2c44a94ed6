#pragma once

#include "Schema.h"
#include "Value.h"

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace engine {

/// A prepared statement. Failures are RuntimeErrors; a failed statement is reset, so that it can run again.
class Statement {
public:
    Statement() = default;
    Statement(sqlite3* database, const QByteArray& sql);

    explicit operator bool() const { return m_statement != nullptr; }

    /// Positions count from 1. One that the statement does not have is ignored.
    void bind(int position, const Value& value);
    void bind(int position, qint64 number);
    /// Binds a column of another statement's row just as it is stored.
    void bindColumn(int position, const Statement& row, int index);
    /// True if there is a row to read, false at the end.
    bool step();
    /// Steps a statement that gives no rows.
    void run();
    void reset() noexcept;
    /// Frees the bound texts.
    void clear() noexcept;

    /// Columns count from 0. Error 6 for a Long beyond 32 bits.
    Value column(int index, FieldKind kind) const;
    qint64 integer(int index) const;
    QString text(int index) const;

    int columnCount() const;
    /// How the file stores the value, whatever the field's declared type.
    enum class Stored : quint8 { Null, Number, Text, Other };
    Stored stored(int index) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const;
    };
    void check(int code) const;

    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

} // namespace engine
