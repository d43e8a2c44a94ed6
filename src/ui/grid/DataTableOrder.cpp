#include "DataTableOrder.h"

#include "Conversions.h"
#include "GermanOrder.h"

#include <QCollator>
#include <QHash>
#include <algorithm>
#include <compare>
#include <numeric>

namespace {

/// A cell as what it is compared by.
struct Key {
    enum class Class { Empty, Number, Text } kind = Class::Empty;
    double place = 0; ///< the number or day, or the place of the text among all texts

    auto operator<=>(const Key&) const = default;
};

/// The places of texts among one another. Equal texts are compared once only, which makes a long list of few
/// names as quick as one of numbers.
class Places {
public:
    explicit Places(const QStringList& words)
        : m_words(words) {}

    void add(const QString& text) { m_places.insert(text, 0); }

    void settle() {
        std::vector<std::pair<QCollatorSortKey, double*>> keys;
        keys.reserve(static_cast<std::size_t>(m_places.size()));
        for (auto one = m_places.begin(); one != m_places.end(); ++one)
            keys.emplace_back(germanOrder().sortKey(one.key()), &one.value());
        std::sort(keys.begin(), keys.end(),
                  [](const auto& a, const auto& b) { return a.first.compare(b.first) < 0; });
        double place = static_cast<double>(m_words.size()) - 1;
        for (std::size_t i = 0; i < keys.size(); ++i) {
            // What differs in nothing but its capitals has one place.
            if (i == 0 || keys[i - 1].first.compare(keys[i].first) != 0) ++place;
            *keys[i].second = place;
        }
        for (qsizetype word = 0; word < m_words.size(); ++word)
            if (const auto found = m_places.find(m_words[word]); found != m_places.end())
                *found = static_cast<double>(word);
    }

    double of(const QString& text) const { return m_places.value(text); }

private:
    const QStringList& m_words;
    QHash<QString, double> m_places;
};

/// A cell that is no text, or stands for a number.
Key numberKey(const Value& cell, const GridColumn& kind) {
    switch (cell.kind()) {
    case Value::Kind::Null:
        return {};
    case Value::Kind::Date:
        return {Key::Class::Number, cell.date().days};
    case Value::Kind::Text:
        if (cell.text().isEmpty()) return {};
        if (!kind.numeric || !IsNumeric(cell)) return {Key::Class::Text};
        [[fallthrough]];
    default:
        return {Key::Class::Number, CDbl(cell)};
    }
}

} // namespace

std::vector<int> orderedRows(const DataTableRows& rows, const TextPool& texts, int column,
                             const GridColumn& kind, Qt::SortOrder order) {
    const auto count = static_cast<std::size_t>(rows.rowCount());
    const auto cell = [&](std::size_t row) { return rows.value(static_cast<int>(row), column, texts); };
    std::vector<Key> keys(count);
    Places places(kind.order);
    for (std::size_t row = 0; row < count; ++row) {
        const Value value = cell(row);
        keys[row] = numberKey(value, kind);
        if (keys[row].kind == Key::Class::Text) places.add(value.text());
    }
    places.settle();
    for (std::size_t row = 0; row < count; ++row)
        if (keys[row].kind == Key::Class::Text) keys[row].place = places.of(cell(row).text());

    std::vector<int> ordered(count);
    std::iota(ordered.begin(), ordered.end(), 0);
    const auto key = [&](int row) -> const Key& { return keys[static_cast<std::size_t>(row)]; };
    if (order == Qt::AscendingOrder)
        std::stable_sort(ordered.begin(), ordered.end(), [&](int a, int b) { return key(a) < key(b); });
    else
        std::stable_sort(ordered.begin(), ordered.end(), [&](int a, int b) { return key(b) < key(a); });
    return ordered;
}
