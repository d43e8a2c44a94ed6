#include "DataTableOrder.h"

#include "Conversions.h"
#include "GermanOrder.h"

#include <QCollator>
#include <QHash>
#include <algorithm>
#include <numeric>

namespace {

/// A cell as what it is compared by.
struct Key {
    enum class Class { Empty, Number, Text } kind = Class::Empty;
    double place = 0; ///< the number or day, or the place of the text among all texts

    auto operator<=>(const Key&) const = default;
};

using Places = QHash<QString, double>;

/// Gives the texts their places among one another, after the words that have an order of their own. Equal
/// texts are compared once only, which makes a long list of few names as quick as one of numbers.
void settle(Places& places, const QStringList& words) {
    std::vector<std::pair<QCollatorSortKey, double*>> keys;
    for (auto one = places.begin(); one != places.end(); ++one)
        keys.emplace_back(germanOrder().sortKey(one.key()), &one.value());
    std::sort(keys.begin(), keys.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    double place = static_cast<double>(words.size()) - 1;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        // What differs in nothing but its capitals has one place.
        if (i == 0 || keys[i - 1].first < keys[i].first) ++place;
        *keys[i].second = place;
    }
    for (qsizetype word = 0; word < words.size(); ++word)
        if (const auto found = places.find(words[word]); found != places.end())
            *found = static_cast<double>(word);
}

Key keyOf(const Value& cell, bool numeric) {
    switch (cell.kind()) {
    case Value::Kind::Null:
        return {};
    case Value::Kind::Date:
        return {Key::Class::Number, cell.date().days};
    case Value::Kind::Text:
        if (cell.text().isEmpty()) return {};
        if (!numeric || !IsNumeric(cell)) return {Key::Class::Text};
        [[fallthrough]];
    default:
        return {Key::Class::Number, CDbl(cell)};
    }
}

} // namespace

std::vector<int> orderedRows(const DataTableRows& rows, int column, const GridColumn& kind,
                             Qt::SortOrder order) {
    std::vector<int> ordered(static_cast<std::size_t>(rows.rowCount()));
    std::iota(ordered.begin(), ordered.end(), 0);
    std::vector<Key> keys;
    keys.reserve(ordered.size());
    Places places;
    for (const int row : ordered) {
        const Value cell = rows.value(row, column);
        keys.push_back(keyOf(cell, kind.numeric));
        if (keys.back().kind == Key::Class::Text) places.insert(cell.text(), 0);
    }
    settle(places, kind.order);
    const auto key = [&](int row) -> Key& { return keys[static_cast<std::size_t>(row)]; };
    for (const int row : ordered)
        if (key(row).kind == Key::Class::Text) key(row).place = places.value(rows.value(row, column).text());
    const bool up = order == Qt::AscendingOrder;
    std::stable_sort(ordered.begin(), ordered.end(),
                     [&](int a, int b) { return up ? key(a) < key(b) : key(b) < key(a); });
    return ordered;
}
