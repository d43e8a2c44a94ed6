#include "StatementCache.h"

#include <utility>

namespace cursors {

StatementCache::Loan& StatementCache::Loan::operator=(Loan&& other) noexcept {
    if (this == &other) return *this;
    giveBack();
    m_statement = std::move(other.m_statement);
    m_plan = std::move(other.m_plan);
    m_home = std::move(other.m_home);
    return *this;
}

void StatementCache::Loan::giveBack() noexcept {
    if (!m_statement) return;
    engine::Statement statement = std::exchange(m_statement, engine::Statement());
    const std::shared_ptr<Entry> home = std::exchange(m_home, nullptr);
    constexpr size_t mostIdle = 2;
    if (home == nullptr || home->idle.size() >= mostIdle) return;
    statement.reset();
    statement.clear();
    home->idle.push_back(std::move(statement));
}

StatementCache::Loan StatementCache::take(const QString& key) {
    const auto place = m_places.constFind(key);
    if (place == m_places.constEnd()) return {};
    m_entries.splice(m_entries.begin(), m_entries, *place);
    return lend(m_entries.front());
}

StatementCache::Loan StatementCache::add(const QString& key, dialect::SelectPlan plan) {
    return lend(remember(key, std::move(plan)));
}

StatementCache::Loan StatementCache::take(const QByteArray& sql) {
    // The dialect's keys begin with SELECT or a space and never contain this control character.
    const QString key = u'\5' + QString::fromUtf8(sql);
    Loan known = take(key);
    if (known) return known;
    return lend(remember(key, dialect::SelectPlan{.sql = sql, .columns = {}}));
}

void StatementCache::clear() {
    m_places.clear();
    m_entries.clear();
}

StatementCache::Loan StatementCache::lend(const std::shared_ptr<Entry>& entry) {
    Loan loan;
    if (entry->idle.empty()) {
        loan.m_statement = engine::Statement(m_database, entry->plan->sql);
    } else {
        loan.m_statement = std::move(entry->idle.back());
        entry->idle.pop_back();
    }
    loan.m_plan = entry->plan;
    loan.m_home = entry;
    return loan;
}

std::shared_ptr<StatementCache::Entry> StatementCache::remember(const QString& key,
                                                                dialect::SelectPlan plan) {
    constexpr qsizetype mostEntries = 128;
    auto entry = std::make_shared<Entry>();
    entry->key = QString(key.constData(), key.size());
    entry->plan = std::make_shared<const dialect::SelectPlan>(std::move(plan));
    m_entries.push_front(entry);
    m_places.insert(entry->key, m_entries.begin());
    if (m_places.size() > mostEntries) {
        m_places.remove(m_entries.back()->key);
        m_entries.pop_back();
    }
    return entry;
}

} // namespace cursors
