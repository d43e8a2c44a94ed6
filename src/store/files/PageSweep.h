#pragma once

#include "PageReader.h"
#include "SavedRows.h"

#include <QHash>
#include <set>

/// Saves the rows of every page into the tables to which they belong. Pages are not asked for their place in
/// a table, which a damaged page between may have cut off, but for the looks of their rows. Where two tables'
/// rows look the same, what is left of the library's list of tables tells them apart, and without it their
/// order in the file, where tables begin in the order of the schema.
class PageSweep {
public:
    PageSweep(engine::PageReader& pages, cursors::Connection& target)
        : m_pages(pages)
        , m_saved(target) {}

    /// False if there was no row of ours.
    bool run();
    /// The numbers given out last, by the tables' names, as far as they are left.
    const QHash<QString, qint64>& counters() const { return m_counters; }

private:
    using Candidates = std::vector<const TableSpec*>;
    struct LikePage {
        int page;
        Candidates tables;
    };

    void sweep(int page);
    Candidates candidates(int page);
    bool save(int page, const TableSpec& table);
    bool note(const TableSpec& table, const engine::Statement& row);
    void saveLikePages();
    void saveKnownBeginnings();
    const TableSpec* choose(const LikePage& like);
    const TableSpec* chooseByRow(const Candidates& tables, const engine::Statement& row);

    engine::PageReader& m_pages;
    SavedRows m_saved;
    QHash<QString, qint64> m_beginnings;
    QHash<QString, qint64> m_counters;
    std::vector<LikePage> m_likePages;   ///< whose rows fit more than one table
    std::set<const TableSpec*> m_closed; ///< nothing of these is missing
};
