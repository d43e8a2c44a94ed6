#pragma once

#include "PageReader.h"
#include "SavedRows.h"

#include <QHash>
#include <set>

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
    std::set<const TableSpec*> m_closed; ///< tables saved completely
};
