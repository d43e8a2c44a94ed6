#include "PageSweep.h"

#include "RowShape.h"

#include <algorithm>

namespace {

bool isForPrinting(const TableSpec& table) { return table.name.startsWith(u"Druck_"); }

} // namespace

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
PageSweep::Candidates PageSweep::candidates(int page) {
    Candidates tables;
    m_pages.rowsOf(page, [&](const engine::Statement& row) {
        Candidates ofRow = tablesOfRow(row);
        if (tables.empty() || ofRow.size() < tables.size()) tables = std::move(ofRow);
        return tables.size() != 1;
    });
    return tables;
}

/// An inner page yields the same rows as its leaves. If its first row is saved already, skip it: its other
/// rows come with their leaf pages.
bool PageSweep::save(int page, const TableSpec& table) {
    if (isForPrinting(table)) return true;
    return m_pages.rowsOf(page, [&](const engine::Statement& row) { return note(table, row); });
}

bool PageSweep::note(const TableSpec& table, const engine::Statement& row) {
    if (&table == &catalogueTable())
        m_beginnings[row.text(2)] = row.integer(4);
    else if (&table == &countersTable())
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
    m_pages.rowsOf(like.page, [&](const engine::Statement& row) {
        chosen = chooseByRow(like.tables, row);
        return false;
    });
    return chosen;
}

const TableSpec* PageSweep::chooseByRow(const Candidates& tables, const engine::Statement& row) {
    const auto has = [&](const TableSpec* table) { return m_saved.holds(*table, row); };
    if (std::ranges::any_of(tables, has)) return nullptr;
    const auto lacks = [&](const TableSpec* table) {
        return !m_closed.contains(table) && !m_saved.hasNumber(*table, row);
    };
    const auto found = std::ranges::find_if(tables, lacks);
    return found == tables.end() ? nullptr : *found;
}
