#include "Statement.h"

#include "Sqlite.h"
#include "SqliteError.h"
#include "StoredText.h"

#include <limits>

namespace engine {

namespace {

QString textOf(sqlite3_value* stored) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(stored));
    return storedText({bytes, sqlite3_value_bytes(stored)});
}

bool fitsLong(qint64 number) {
    return number >= std::numeric_limits<qint32>::min() && number <= std::numeric_limits<qint32>::max();
}

Value storedInteger(qint64 number, FieldKind kind) {
    switch (kind) {
    case FieldKind::Boolean:
        return number != 0;
    case FieldKind::Double:
        return static_cast<double>(number);
    case FieldKind::Date:
        return Date{static_cast<double>(number)};
    case FieldKind::AutoNumber:
    case FieldKind::Long:
        if (!fitsLong(number)) throw runtimeError(RuntimeError::overflow);
        return static_cast<qint32>(number);
    case FieldKind::Text:
        return QString::number(number);
    default:
        if (fitsLong(number)) return static_cast<qint32>(number);
        return static_cast<double>(number);
    }
}

Value storedReal(double number, FieldKind kind) {
    if (kind == FieldKind::Date) return Date{number};
    if (kind == FieldKind::Boolean) return number != 0;
    return number;
}

} // namespace

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Statement::Statement(sqlite3* database, const QByteArray& sql) {
    sqlite3_stmt* prepared = nullptr;
    const int size = static_cast<int>(sql.size()) + 1;
    const int code = sqlite3_prepare_v2(database, sql.constData(), size, &prepared, nullptr);
    m_statement.reset(prepared);
    if (code != SQLITE_OK) throw prepareError(database);
}

void Statement::check(int code) const {
    if (code == SQLITE_OK || code == SQLITE_RANGE) return;
    throw sqliteError(sqlite3_db_handle(m_statement.get()));
}

void Statement::bind(int position, qint64 number) {
    check(sqlite3_bind_int64(m_statement.get(), position, number));
}

void Statement::bind(int position, const Value& value) {
    sqlite3_stmt* statement = m_statement.get();
    switch (value.kind()) {
    case Value::Kind::Null:
        return check(sqlite3_bind_null(statement, position));
    case Value::Kind::Boolean:
        return check(sqlite3_bind_int(statement, position, value.boolean() ? 1 : 0));
    case Value::Kind::Long:
        return check(sqlite3_bind_int(statement, position, value.number()));
    case Value::Kind::Double:
        return check(sqlite3_bind_double(statement, position, value.real()));
    case Value::Kind::Date:
        return check(sqlite3_bind_double(statement, position, value.date().days));
    case Value::Kind::Text:
        break;
    }
    const QByteArray bytes = storedBytes(value.text());
    check(sqlite3_bind_text64(statement, position, bytes.constData(), static_cast<quint64>(bytes.size()),
                              SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Statement::bindColumn(int position, const Statement& row, int index) {
    check(
        sqlite3_bind_value(m_statement.get(), position, sqlite3_column_value(row.m_statement.get(), index)));
}

bool Statement::step() {
    const int code = sqlite3_step(m_statement.get());
    if (code == SQLITE_ROW) return true;
    if (code == SQLITE_DONE) return false;
    const RuntimeError error = sqliteError(sqlite3_db_handle(m_statement.get()));
    reset();
    throw error;
}

void Statement::run() {
    while (step()) {
    }
    reset();
}

void Statement::reset() noexcept {
    // sqlite3_reset() repeats the code of the last step, which was reported then.
    sqlite3_reset(m_statement.get());
}

void Statement::clear() noexcept { sqlite3_clear_bindings(m_statement.get()); }

Value Statement::column(int index, FieldKind kind) const {
    // Fetch the value once: each sqlite3_column_ function would look it up again.
    sqlite3_value* stored = sqlite3_column_value(m_statement.get(), index);
    switch (sqlite3_value_type(stored)) {
    case SQLITE_NULL:
        return kind == FieldKind::Boolean ? Value(false) : Value();
    case SQLITE_INTEGER:
        return storedInteger(sqlite3_value_int64(stored), kind);
    case SQLITE_FLOAT:
        return storedReal(sqlite3_value_double(stored), kind);
    default:
        return textOf(stored);
    }
}

qint64 Statement::integer(int index) const { return sqlite3_column_int64(m_statement.get(), index); }

QString Statement::text(int index) const { return textOf(sqlite3_column_value(m_statement.get(), index)); }

int Statement::columnCount() const { return sqlite3_column_count(m_statement.get()); }

Statement::Stored Statement::stored(int index) const {
    switch (sqlite3_column_type(m_statement.get(), index)) {
    case SQLITE_NULL:
        return Stored::Null;
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
        return Stored::Number;
    case SQLITE_TEXT:
        return Stored::Text;
    default:
        return Stored::Other;
    }
}

} // namespace engine
