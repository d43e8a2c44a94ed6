#include "RawFills.h"

void rawJoin(RawFile& file, RawCatches& rows) {
    rows.clear();
    sqlite3_stmt* join = file.prepare(
        "SELECT fa.FangNr, f.FName, g.GName, fa.FangMonat, fa.Anzahl, fa.Gewicht FROM Fang fa, Fisch f, "
        "Gewaesser g "
        "WHERE fa.FangJahr = 2026 AND fa.FangMonat = 3 AND fa.FischNr = f.FNr AND fa.GNr = g.GNr");
    while (sqlite3_step(join) == SQLITE_ROW) {
        auto& row = rows.emplace_back();
        for (const int column : {0, 3, 4, 5})
            row[static_cast<std::size_t>(column)].number = sqlite3_column_int64(join, column);
        for (const int column : {1, 2})
            row[static_cast<std::size_t>(column)].text =
                reinterpret_cast<const char*>(sqlite3_column_text(join, column));
    }
    sqlite3_finalize(join);
}

int rawCounts(RawFile& file) {
    sqlite3_stmt* names = file.prepare("SELECT KategoNr, Kategorie FROM Katego");
    int rows = 0;
    while (sqlite3_step(names) == SQLITE_ROW) {
        sqlite3_stmt* of = file.prepare("SELECT * FROM Kontakt WHERE KategoNr = " +
                                        QByteArray::number(sqlite3_column_int(names, 0)));
        while (sqlite3_step(of) == SQLITE_ROW) ++rows;
        sqlite3_finalize(of);
    }
    sqlite3_finalize(names);
    return rows;
}
