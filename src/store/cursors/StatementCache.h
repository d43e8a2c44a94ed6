#pragma once

#include "SelectRewriter.h"
#include "Statement.h"

#include <QHash>
#include <QString>
#include <list>
#include <memory>
#include <vector>

struct sqlite3;

namespace cursors {

/// The prepared statements of a connection. The least recently used ones are dropped first. A statement on
/// loan is not in the cache: a second user of its key gets another one.
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
    /// A statement on loan. Its destructor resets the statement and gives it back.
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

    /// The statement of a key, empty if the key is unknown. Then call add().
    Loan take(const QString& key);
    /// Prepares a rewritten SELECT and keeps it under its key.
    Loan add(const QString& key, dialect::SelectPlan plan);
    /// As above for SQLite's own SQL, prepared on first use.
    Loan take(const QByteArray& sql);
    void clear();

private:
    Loan lend(const std::shared_ptr<Entry>& entry);
    std::shared_ptr<Entry> remember(const QString& key, dialect::SelectPlan plan);

    sqlite3* m_database;
    std::list<std::shared_ptr<Entry>> m_entries; ///< the most recently used one first
    QHash<QString, std::list<std::shared_ptr<Entry>>::iterator> m_places;
};

} // namespace cursors
