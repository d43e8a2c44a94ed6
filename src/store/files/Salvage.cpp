#include "Salvage.h"

#include "Clock.h"
#include "Essentials.h"
#include "PageReader.h"
#include "RawContent.h"
#include "SafetyCopy.h"
#include "UnfinishedFile.h"

#include <QFile>
#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <set>

namespace {

using engine::Statement;
using Stored = Statement::Stored;
using Candidates = std::vector<const TableSpec*>;

constexpr auto catalogueFields = std::to_array<FieldSpec>({
    {u"type", FieldKind::Text},
    {u"name", FieldKind::Text},
    {u"tbl_name", FieldKind::Text},
    {u"rootpage", FieldKind::Long},
    {u"sql", FieldKind::Text},
});
constexpr auto counterFields = std::to_array<FieldSpec>({
    {u"name", FieldKind::Text},
    {u"seq", FieldKind::Long},
});
/// SQLite's list of tables and their first pages.
constexpr TableSpec catalogueTable{u"sqlite_master", catalogueFields, false};
/// The last numbers given out.
constexpr TableSpec countersTable{u"sqlite_sequence", counterFields, false};

int fieldsOf(const Statement& row) {
    int count = 0;
    while (count + 1 < row.columnCount() && row.stored(count + 1) != Stored::Other) ++count;
    return count;
}

Stored expected(FieldKind kind) { return kind == FieldKind::Text ? Stored::Text : Stored::Number; }

/// The number of fields that are stored as expected, -1 if the row can't belong to the table.
int likeness(const Statement& row, int fields, const TableSpec& table) {
    // A keyed table stores its key only as the row number, so the key's field is Null.
    const bool hasKeyElsewhere = row.stored(1) == Stored::Null;
    if (fields != static_cast<int>(table.fields.size()) || hasKeyElsewhere != table.keyed) return -1;
    int alike = 0;
    for (int i = 0; i < fields; ++i)
        if (row.stored(i + 1) == expected(table.fields[static_cast<size_t>(i)].kind)) ++alike;
    return alike;
}

/// The tables whose fields fit the row best, in the order of the schema, SQLite's own ones last.
Candidates tablesOfRow(const Statement& row) {
    const int fields = fieldsOf(row);
    Candidates best;
    int most = 0;
    const auto consider = [&](const TableSpec& table) {
        const int alike = likeness(row, fields, table);
        if (alike < most) return;
        if (alike > most) best.clear();
        most = alike;
        best.push_back(&table);
    };
    for (const TableSpec& table : schemaTables()) consider(table);
    consider(catalogueTable);
    consider(countersTable);
    return best;
}

/// The tables of the new file during a salvage.
class SavedRows {
public:
    explicit SavedRows(cursors::Connection& target)
        : m_target(target) {}

    /// Adds a row. Returns false if the table has a row of that number.
    bool add(const TableSpec& table, const Statement& row);
    /// Whether the table has a row of the same number and fields.
    bool holds(const TableSpec& table, const Statement& row) { return finds(of(table).same, table, row); }
    bool hasNumber(const TableSpec& table, const Statement& row) {
        return finds(of(table).number, table, row);
    }
    bool isEmpty() const { return m_isEmpty; }

private:
    struct Statements {
        Statement insert, same, number;
    };
    Statements& of(const TableSpec& table);
    static void bind(Statement& statement, const TableSpec& table, const Statement& row);
    static bool finds(Statement& statement, const TableSpec& table, const Statement& row);

    cursors::Connection& m_target;
    std::map<const TableSpec*, Statements> m_statements;
    bool m_isEmpty = true;
};

/// A keyed table's key is the row number, not a field of the row.
size_t firstField(const TableSpec& table) { return table.keyed ? 1 : 0; }

SavedRows::Statements& SavedRows::of(const TableSpec& table) {
    const auto [place, isNew] = m_statements.try_emplace(&table);
    if (!isNew) return place->second;
    QByteArrayList names = {"rowid"};
    QByteArrayList values = {"?1"};
    QByteArrayList equal = {"rowid = ?1"};
    for (size_t i = firstField(table); i < table.fields.size(); ++i) {
        names += quotedName(table.fields[i].name);
        values += '?' + QByteArray::number(names.size());
        equal += names.back() + " IS " + values.back();
    }
    const QByteArray name = quotedName(table.name);
    place->second = {m_target.prepare("INSERT OR IGNORE INTO " + name + " (" + names.join(", ") +
                                      ") VALUES (" + values.join(", ") + ')'),
                     m_target.prepare("SELECT 1 FROM " + name + " WHERE " + equal.join(" AND ")),
                     m_target.prepare("SELECT 1 FROM " + name + " WHERE " + equal.front())};
    return place->second;
}

void SavedRows::bind(Statement& statement, const TableSpec& table, const Statement& row) {
    statement.bindColumn(1, row, 0);
    int position = 1;
    for (size_t i = firstField(table); i < table.fields.size(); ++i)
        statement.bindColumn(++position, row, static_cast<int>(i) + 1);
}

bool SavedRows::finds(Statement& statement, const TableSpec& table, const Statement& row) {
    bind(statement, table, row);
    const bool found = statement.step();
    statement.reset();
    return found;
}

bool SavedRows::add(const TableSpec& table, const Statement& row) {
    Statement& insert = of(table).insert;
    bind(insert, table, row);
    insert.run();
    const bool isNew = m_target.changes() > 0;
    m_isEmpty = m_isEmpty && !isNew;
    return isNew;
}

/// Saves the rows of every page into the tables to which they belong. The table is recognised by the look of
/// a page's rows, since damage may have cut the page off from its table. If rows fit several tables, the
/// remains of sqlite_master decide; without them the order of pages does, as tables begin in the order of the
/// schema.
class PageSweep {
public:
    PageSweep(engine::PageReader& pages, cursors::Connection& target)
        : m_pages(pages)
        , m_saved(target) {}

    /// Returns false if no row was found.
    bool run();
    /// The last numbers given out, by table, as far as they could be read.
    const QHash<QString, qint64>& counters() const { return m_counters; }

private:
    struct LikePage {
        int page;
        Candidates tables;
    };

    void sweep(int page);
    Candidates candidates(int page);
    bool save(int page, const TableSpec& table);
    bool note(const TableSpec& table, const Statement& row);
    void saveLikePages();
    void saveKnownBeginnings();
    const TableSpec* choose(const LikePage& like);
    const TableSpec* chooseByRow(const Candidates& tables, const Statement& row);

    engine::PageReader& m_pages;
    SavedRows m_saved;
    QHash<QString, qint64> m_beginnings;
    QHash<QString, qint64> m_counters;
    std::vector<LikePage> m_likePages;   ///< whose rows fit more than one table
    std::set<const TableSpec*> m_closed; ///< tables saved completely
};

bool PageSweep::run() {
    for (int page = 2; page <= m_pages.pageCount(); ++page) sweep(page);
    saveLikePages();
    return !m_saved.isEmpty();
}

void PageSweep::sweep(int page) {
    Candidates tables = candidates(page);
    if (tables.size() == 1)
        save(page, *tables.front());
    else if (!tables.empty())
        m_likePages.push_back({page, std::move(tables)});
}

/// The first row mostly decides. Later rows are read only if several tables fit.
Candidates PageSweep::candidates(int page) {
    Candidates tables;
    m_pages.rowsOf(page, [&](const Statement& row) {
        Candidates ofRow = tablesOfRow(row);
        if (tables.empty() || ofRow.size() < tables.size()) tables = std::move(ofRow);
        return tables.size() != 1;
    });
    return tables;
}

/// An inner page yields the same rows as its leaves. If its first row is saved already, skip it: its other
/// rows come with their leaf pages.
bool PageSweep::save(int page, const TableSpec& table) {
    if (table.name.startsWith(u"Druck_")) return true;
    return m_pages.rowsOf(page, [&](const Statement& row) { return note(table, row); });
}

bool PageSweep::note(const TableSpec& table, const Statement& row) {
    if (&table == &catalogueTable)
        m_beginnings[row.text(2)] = row.integer(4);
    else if (&table == &countersTable)
        m_counters[row.text(1)] = std::max(m_counters.value(row.text(1)), row.integer(2));
    else
        return m_saved.add(table, row);
    return true;
}

void PageSweep::saveLikePages() {
    saveKnownBeginnings();
    for (const LikePage& like : m_likePages) {
        const TableSpec* table = choose(like);
        if (!table) continue;
        const bool isBeginning = !m_beginnings.contains(table->name.toString());
        if (save(like.page, *table) && isBeginning) m_closed.insert(table);
        m_beginnings.insert(table->name.toString(), like.page);
    }
}

void PageSweep::saveKnownBeginnings() {
    for (const LikePage& like : m_likePages)
        for (const TableSpec* table : like.tables) {
            const bool beginsHere = m_beginnings.value(table->name.toString()) == like.page;
            if (beginsHere && save(like.page, *table)) m_closed.insert(table);
        }
}

/// Null if the rows are saved already.
const TableSpec* PageSweep::choose(const LikePage& like) {
    const TableSpec* chosen = nullptr;
    m_pages.rowsOf(like.page, [&](const Statement& row) {
        chosen = chooseByRow(like.tables, row);
        return false;
    });
    return chosen;
}

const TableSpec* PageSweep::chooseByRow(const Candidates& tables, const Statement& row) {
    const auto has = [&](const TableSpec* table) { return m_saved.holds(*table, row); };
    if (std::ranges::any_of(tables, has)) return nullptr;
    const auto lacks = [&](const TableSpec* table) {
        return !m_closed.contains(table) && !m_saved.hasNumber(*table, row);
    };
    const auto found = std::ranges::find_if(tables, lacks);
    return found == tables.end() ? nullptr : *found;
}

} // namespace

std::shared_ptr<const void> salvageFile(const QString& source, const QString& target, const QString& password,
                                        const QString& keptIn) {
    const auto content = std::make_shared<engine::RawContent>(source);
    content->lock();
    engine::PageReader pages(*content, password, std::numeric_limits<int>::max());
    UnfinishedFile file(target, password);
    if (!QFile::setPermissions(target, QFile::permissions(source)))
        throw runtimeError(RuntimeError::accessDenied);
    for (const QByteArray& statement : schemaStatements()) file.connection().execute(statement);
    PageSweep sweep(pages, file.connection());
    if (!sweep.run()) throw runtimeError(RuntimeError::cannotBeRepaired, source);
    raiseCounters(file.connection(), sweep.counters());
    restoreEssentials(file.connection());
    keepFileBefore(QStringLiteral("Reparatur"), *content, source, keptIn, now());
    file.finish();
    return content;
}
