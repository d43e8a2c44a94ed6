#include "SqlFunctions.h"

#include "LikePattern.h"
#include "SqlNames.h"
#include "Sqlite.h"
#include "SqliteError.h"
#include "TextComparison.h"

#include <memory>
#include <new>

namespace engine {

namespace {

QByteArrayView textOf(sqlite3_value* value) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {bytes, sqlite3_value_bytes(value)};
}

int collate(void*, int sizeA, const void* a, int sizeB, const void* b) noexcept {
    return compareTexts({static_cast<const char*>(a), sizeA}, {static_cast<const char*>(b), sizeB});
}

void deletePattern(void* pattern) { delete static_cast<LikePattern*>(pattern); }

/// The pattern is nearly always a bound literal, so it is parsed once for all rows. Exceptions must not cross
/// SQLite's C code.
void like(sqlite3_context* context, int, sqlite3_value** arguments) noexcept {
    const bool hasNull =
        sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL;
    if (hasNull) return sqlite3_result_null(context);
    try {
        if (const auto* known = static_cast<const LikePattern*>(sqlite3_get_auxdata(context, 1)))
            return sqlite3_result_int(context, known->matches(textOf(arguments[0])) ? 1 : 0);
        auto pattern = std::make_unique<LikePattern>(textOf(arguments[1]));
        sqlite3_result_int(context, pattern->matches(textOf(arguments[0])) ? 1 : 0);
        sqlite3_set_auxdata(context, 1, pattern.release(), deletePattern);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    }
}

void failForTooManyRows(sqlite3_context* context, int, sqlite3_value**) noexcept {
    sqlite3_result_error(context, sqlname::tooManyRows, -1);
}

void check(sqlite3* database, int code) {
    if (code != SQLITE_OK) throw sqliteError(database);
}

} // namespace

void registerSqlFunctions(sqlite3* database) {
    constexpr int pure = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
    check(database,
          sqlite3_create_collation(database, sqlname::textCollation, SQLITE_UTF8, nullptr, collate));
    check(database,
          sqlite3_create_function(database, sqlname::like, 2, pure, nullptr, like, nullptr, nullptr));
    // Not pure: SQLite may call a pure function without arguments ahead, though no row asks for it.
    check(database, sqlite3_create_function(database, sqlname::tooManyRows, 0, SQLITE_UTF8, nullptr,
                                            failForTooManyRows, nullptr, nullptr));
}

} // namespace engine
