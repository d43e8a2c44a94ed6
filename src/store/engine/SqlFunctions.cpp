#include "SqlFunctions.h"

#include "LikePattern.h"
#include "SqlNames.h"
#include "Sqlite.h"
#include "SqliteError.h"
#include "StoredText.h"
#include "TextComparison.h"

#include <memory>
#include <new>

namespace engine {

// Exceptions must not cross SQLite's C code.

namespace {

void reportError(sqlite3_context* context, const RuntimeError& error) {
    const QByteArray mark = errorMark(error);
    sqlite3_result_error(context, mark.constData(), static_cast<int>(mark.size()));
}

QByteArrayView textOf(sqlite3_value* value) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {bytes, sqlite3_value_bytes(value)};
}

int collate(void*, int sizeA, const void* a, int sizeB, const void* b) noexcept {
    return compareTexts({static_cast<const char*>(a), sizeA}, {static_cast<const char*>(b), sizeB});
}

void deletePattern(void* pattern) { delete static_cast<LikePattern*>(pattern); }

/// The pattern is nearly always a bound literal, so it is parsed once for all rows.
void like(sqlite3_context* context, int, sqlite3_value** arguments) noexcept {
    const bool hasNull =
        sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL;
    if (hasNull) return sqlite3_result_null(context);
    try {
        if (const auto* known = static_cast<const LikePattern*>(sqlite3_get_auxdata(context, 1)))
            return sqlite3_result_int(context, known->matches(textOf(arguments[0])) ? 1 : 0);
        auto pattern = std::make_unique<LikePattern>(storedText(textOf(arguments[1])));
        sqlite3_result_int(context, pattern->matches(textOf(arguments[0])) ? 1 : 0);
        sqlite3_set_auxdata(context, 1, pattern.release(), deletePattern);
    } catch (const RuntimeError& error) {
        reportError(context, error);
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    }
}

/// The state of one run of the aggregate. SQLite allocates it, filled with zeros.
struct SingleValue {
    bool seen;
    sqlite3_value* value;
};

void takeSingle(sqlite3_context* context, int, sqlite3_value** arguments) noexcept {
    auto* single = static_cast<SingleValue*>(sqlite3_aggregate_context(context, sizeof(SingleValue)));
    if (single == nullptr) return sqlite3_result_error_nomem(context);
    if (single->seen) return reportError(context, runtimeError(RuntimeError::tooManyRows));
    single->seen = true;
    single->value = sqlite3_value_dup(arguments[0]);
    if (single->value == nullptr) sqlite3_result_error_nomem(context);
}

/// SQLite calls this after a failure too, so that the value is freed.
void giveSingle(sqlite3_context* context) noexcept {
    auto* single = static_cast<SingleValue*>(sqlite3_aggregate_context(context, 0));
    if (single == nullptr || single->value == nullptr) return;
    sqlite3_result_value(context, single->value);
    sqlite3_value_free(single->value);
    single->value = nullptr;
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
    check(database, sqlite3_create_function(database, sqlname::singleValue, 1, pure, nullptr, nullptr,
                                            takeSingle, giveSingle));
}

} // namespace engine
