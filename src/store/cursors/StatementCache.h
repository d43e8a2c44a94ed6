#pragma once

#include "SelectPlan.h"
#include "Statement.h"

#include <QHash>
#include <QString>
#include <list>
#include <memory>
#include <vector>

struct sqlite3;

namespace cursors {

/// The prepared statements of a connection, the least recently used ones given up first. A statement is out
/// of the cache while somebody holds it; a second user of the same key gets one of his own.
class StatementCache {
public:
    explicit StatementCache(sqlite3* database)
        : m_database(database) {}

private:
    struct Entry {
        QString key;
        std::shared_ptr<const dialect::SelectPlan> plan;
        std::vector<engine::Statement> idle;
    };

public:
    /// A statement on loan. Goes back, reset, when this ends.
    class Loan {
    public:
        Loan() = default;
        ~Loan() { giveBack(); }
        Loan(Loan&&) noexcept = default;
        Loan& operator=(Loan&& other) noexcept;

        explicit operator bool() const { return static_cast<bool>(m_statement); }
        engine::Statement* operator->() { return &m_statement; }
        const engine::Statement* operator->() const { return &m_statement; }
        const dialect::SelectPlan& plan() const { return *m_plan; }
        void giveBack() noexcept;

    private:
        friend class StatementCache;
        engine::Statement m_statement;
        std::shared_ptr<const dialect::SelectPlan> m_plan;
        std::shared_ptr<Entry> m_home;
    };

    /// Empty if nothing is known of the key yet.
    Loan take(const QString& key);
    /// Prepares a statement for a rewritten SELECT.
    Loan add(const QString& key, dialect::SelectPlan plan);
    /// A statement of the store's own.
    Loan take(const QByteArray& sql);
    void clear();

private:
    Loan lend(const std::shared_ptr<Entry>& entry);
    std::shared_ptr<Entry> remember(const QString& key, dialect::SelectPlan plan);

    sqlite3* m_database;
    std::list<std::shared_ptr<Entry>> m_entries; ///< the most recently used one in front
    QHash<QString, std::list<std::shared_ptr<Entry>>::iterator> m_places;
};

} // namespace cursors
