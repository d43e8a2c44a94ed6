#include "DataTableModel.h"

#include "DataTableOrder.h"
#include "RuntimeError.h"

#include <algorithm>

namespace {

const QColor childBack(172, 199, 247);

/// A fifth of the way to the other colour: enough to tell rows apart even though that colour may be garish.
QColor towards(const QColor& from, const QColor& to) {
    const auto part = [](int a, int b) { return (a * 4 + b) / 5; };
    return QColor(part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue()));
}

} // namespace

struct DataTableModel::Table {
    Table(int columns, int ownerRow)
        : rows(columns)
        , owner(ownerRow) {}

    DataTableRows rows;
    TextPool texts; ///< one per table, so that a category opened again frees its old texts
    int owner;
    int published = 0;     ///< number of rows known to the view
    int firstChanged = -1; ///< first row with a changed cell not yet published, or -1
    int lastChanged = -1;
    QColor back = childBack;
    QColor second;
};

DataTableModel::DataTableModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_top(std::make_unique<Table>(0, top)) {}

DataTableModel::~DataTableModel() = default;

void DataTableModel::setColumns(const QVector<GridColumn>& columns) {
    beginResetModel();
    m_columns = columns;
    dropAll();
    endResetModel();
}

bool DataTableModel::setChildColumns(const QVector<GridColumn>& columns, int captionColumn) {
    if (columns == m_childColumns && captionColumn == m_captionColumn) return false;
    beginResetModel();
    m_childColumns = columns;
    m_captionColumn = captionColumn;
    m_children.clear();
    m_children.resize(static_cast<std::size_t>(m_top->rows.rowCount()));
    endResetModel();
    return true;
}

int DataTableModel::rows(int owner) const { return table(owner).rows.rowCount(); }

void DataTableModel::clear(int owner) {
    Table& cleared = table(owner);
    if (owner != top) {
        dropRows(cleared);
        return;
    }
    const bool known = cleared.published > 0;
    if (known) beginResetModel();
    dropAll();
    if (known) endResetModel();
}

void DataTableModel::append(int owner, std::span<const Value> cells) {
    Table& longer = table(owner);
    longer.rows.append(cells, longer.texts);
    if (owner == top && isTwoLevel()) m_children.emplace_back();
    m_behind = true;
}

void DataTableModel::insert(int owner, int row, std::span<const Value> cells) {
    Table& changed = table(owner);
    if (row >= changed.rows.rowCount()) {
        append(owner, cells);
        return;
    }
    if (row < 0) throw runtimeError(RuntimeError::outOfRange);
    tellChanges(changed);
    const bool known = row < changed.published;
    if (known) beginInsertRows(ownerIndex(changed), row, row);
    changed.rows.insert(row, cells, changed.texts);
    if (owner == top && isTwoLevel()) {
        m_children.emplace(m_children.begin() + row);
        renumberChildren();
    }
    if (known) {
        ++changed.published;
        endInsertRows();
    }
}

void DataTableModel::remove(int owner, int row) {
    Table& changed = table(owner);
    if (row < 0 || row >= changed.rows.rowCount()) return;
    tellChanges(changed);
    const bool known = row < changed.published;
    if (known) beginRemoveRows(ownerIndex(changed), row, row);
    changed.rows.remove(row);
    if (owner == top) eraseChildren({row});
    if (known) {
        --changed.published;
        endRemoveRows();
    }
}

int DataTableModel::removeWithText(int owner, int column, const QString& text) {
    Table& changed = table(owner);
    const DataTableRows::Wanted wanted(text, changed.texts);
    std::vector<int> hits;
    for (int row = -1; (row = changed.rows.find(column, row + 1, wanted)) >= 0;) hits.push_back(row);
    if (hits.empty()) return 0;

    // Published as one change of layout: one removal for each run of rows would be slow for a long list, and
    // a reset would lose the current row and the expanded categories.
    tellChanges(changed);
    Q_EMIT layoutAboutToBeChanged();
    changed.published -=
        static_cast<int>(std::lower_bound(hits.begin(), hits.end(), changed.published) - hits.begin());
    movePersistentIndexes(changed, hits);
    changed.rows.remove(hits);
    if (owner == top) eraseChildren(hits);
    Q_EMIT layoutChanged();
    return static_cast<int>(hits.size());
}

Value DataTableModel::value(int owner, int row, int column) const {
    const Table& asked = table(owner);
    return asked.rows.value(row, column, asked.texts);
}

QString DataTableModel::text(int owner, int row, int column) const {
    const Table& asked = table(owner);
    return asked.rows.text(row, column, asked.texts);
}

void DataTableModel::set(int owner, int row, int column, const Value& value) {
    Table& changed = table(owner);
    changed.rows.set(row, column, value, changed.texts);
    if (row >= changed.published) return;
    changed.firstChanged = changed.firstChanged < 0 ? row : std::min(changed.firstChanged, row);
    changed.lastChanged = std::max(changed.lastChanged, row);
    m_behind = true;
}

int DataTableModel::find(int owner, int column, int first, const QString& text) const {
    const Table& asked = table(owner);
    return asked.rows.find(column, first, DataTableRows::Wanted(text, asked.texts));
}

void DataTableModel::createChild(int row) {
    if (!isTwoLevel() || row < 0 || row >= m_top->rows.rowCount())
        throw runtimeError(RuntimeError::outOfRange);
    removeChild(row);
    m_children[static_cast<std::size_t>(row)] =
        std::make_unique<Table>(static_cast<int>(m_childColumns.size()), row);
}

void DataTableModel::removeChild(int row) {
    Table* removed = child(row);
    if (!removed) return;
    dropRows(*removed);
    m_children[static_cast<std::size_t>(row)].reset();
}

void DataTableModel::setChildColours(int row, const QColor& back, const QColor& second) {
    Table* coloured = child(row);
    if (!coloured) return;
    coloured->back = back;
    coloured->second = second;
}

QColor DataTableModel::childColour(const QModelIndex& index) const {
    const auto* shown = static_cast<const Table*>(index.internalPointer());
    if (!shown || index.row() % 2 == 0) return shown ? shown->back : childBack;
    return towards(shown->back, shown->second.isValid() ? shown->second : shown->back.darker(130));
}

void DataTableModel::publish() {
    if (!m_behind) return;
    m_behind = false;
    publish(*m_top);
    for (const auto& one : m_children) {
        if (one) publish(*one);
    }
}

std::size_t DataTableModel::memoryInUse() const {
    std::size_t bytes = m_top->texts.memoryInUse() + m_top->rows.memoryInUse();
    bytes += m_children.capacity() * sizeof(m_children.front());
    for (const auto& one : m_children) {
        if (one) bytes += sizeof(Table) + one->texts.memoryInUse() + one->rows.memoryInUse();
    }
    return bytes;
}

int DataTableModel::tableOf(const QModelIndex& index) const {
    const auto* shown = static_cast<const Table*>(index.internalPointer());
    return shown ? shown->owner : top;
}

QModelIndex DataTableModel::indexOf(int owner, int row, int column) const {
    return index(row, column, ownerIndex(table(owner)));
}

QModelIndex DataTableModel::index(int row, int column, const QModelIndex& parent) const {
    if (row < 0 || column < 0 || column >= columnCount() || row >= rowCount(parent)) return {};
    return createIndex(row, column, parent.isValid() ? child(parent.row()) : nullptr);
}

QModelIndex DataTableModel::parent(const QModelIndex& child) const {
    const auto* shown = static_cast<const Table*>(child.internalPointer());
    return shown ? createIndex(shown->owner, 0) : QModelIndex();
}

int DataTableModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) return m_top->published;
    const Table* shown = shownChild(parent);
    return shown ? shown->published : 0;
}

int DataTableModel::columnCount(const QModelIndex& /*parent*/) const {
    return shownColumns().isEmpty() ? 0 : gutterColumn() + 1;
}

bool DataTableModel::hasChildren(const QModelIndex& parent) const { return rowCount(parent) > 0; }

Qt::ItemFlags DataTableModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::NoItemFlags;
    const Qt::ItemFlags usual = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return isCategory(index) ? usual : usual | Qt::ItemNeverHasChildren;
}

QVariant DataTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.column() == gutterColumn()) return {};
    if (role == Qt::TextAlignmentRole) return alignment(index.column());
    if (role != Qt::DisplayRole) return {};
    if (isCategory(index)) {
        return index.column() == 0 ? text(top, index.row(), m_captionColumn) : QString();
    }
    if (shownColumns()[index.column()].picture) return {};
    return text(tableOf(index), index.row(), index.column());
}

QVariant DataTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= gutterColumn()) return {};
    if (role == Qt::DisplayRole) return shownColumns()[section].head;
    if (role == Qt::TextAlignmentRole) return alignment(section);
    if (role == linesRole) return shownColumns()[section].headLines;
    return {};
}

void DataTableModel::sort(int column, Qt::SortOrder order) {
    if (isTwoLevel() || column < 0 || column >= gutterColumn()) return;
    publish();
    const std::vector<int> from = orderedRows(m_top->rows, m_top->texts, column, m_columns[column], order);
    std::vector<int> to(from.size());
    for (std::size_t place = 0; place < from.size(); ++place)
        to[static_cast<std::size_t>(from[place])] = static_cast<int>(place);
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    m_top->rows.reorder(from);
    for (const QModelIndex& old : persistentIndexList())
        changePersistentIndex(old, createIndex(to[static_cast<std::size_t>(old.row())], old.column()));
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

DataTableModel::Table& DataTableModel::table(int owner) {
    return const_cast<Table&>(std::as_const(*this).table(owner));
}

const DataTableModel::Table& DataTableModel::table(int owner) const {
    if (owner == top) return *m_top;
    const Table* found = child(owner);
    if (!found) throw runtimeError(RuntimeError::outOfRange);
    return *found;
}

DataTableModel::Table* DataTableModel::child(int row) const {
    const auto place = static_cast<std::size_t>(row);
    return row >= 0 && place < m_children.size() ? m_children[place].get() : nullptr;
}

/// The child table under a row of the view, or null.
DataTableModel::Table* DataTableModel::shownChild(const QModelIndex& parent) const {
    if (parent.internalPointer() || parent.column() != 0) return nullptr;
    return child(parent.row());
}

QModelIndex DataTableModel::ownerIndex(const Table& table) const {
    return table.owner == top ? QModelIndex() : createIndex(table.owner, 0);
}

void DataTableModel::dropRows(Table& table) {
    const bool known = table.published > 0;
    if (known) beginRemoveRows(ownerIndex(table), 0, table.published - 1);
    table.rows.clear();
    table.texts.clear();
    table.published = 0;
    table.firstChanged = table.lastChanged = -1;
    if (known) endRemoveRows();
}

void DataTableModel::dropAll() {
    m_children.clear();
    m_top = std::make_unique<Table>(static_cast<int>(m_columns.size()), top);
}

void DataTableModel::renumberChildren() {
    for (std::size_t row = 0; row < m_children.size(); ++row) {
        if (m_children[row]) m_children[row]->owner = static_cast<int>(row);
    }
}

void DataTableModel::publish(Table& table) {
    tellChanges(table);
    const int rows = table.rows.rowCount();
    if (table.published == rows) return;
    beginInsertRows(ownerIndex(table), table.published, rows - 1);
    table.published = rows;
    endInsertRows();
}

void DataTableModel::tellChanges(Table& table) {
    if (table.firstChanged < 0) return;
    const QModelIndex owner = ownerIndex(table);
    const QModelIndex from = index(table.firstChanged, 0, owner);
    const QModelIndex to = index(table.lastChanged, gutterColumn(), owner);
    table.firstChanged = table.lastChanged = -1;
    Q_EMIT dataChanged(from, to);
}

void DataTableModel::eraseChildren(const std::vector<int>& rows) {
    if (!isTwoLevel()) return;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) m_children.erase(m_children.begin() + *row);
    renumberChildren();
}

void DataTableModel::movePersistentIndexes(const Table& table, const std::vector<int>& removed) {
    for (const QModelIndex& old : persistentIndexList()) {
        const bool inTable = tableOf(old) == table.owner;
        const int row = inTable ? old.row() : tableOf(old);
        if (!inTable && table.owner != top) continue;
        const auto place = std::lower_bound(removed.begin(), removed.end(), row);
        if (place != removed.end() && *place == row) {
            changePersistentIndex(old, {});
        } else if (inTable) {
            const int moved = row - static_cast<int>(place - removed.begin());
            changePersistentIndex(old, createIndex(moved, old.column(), old.internalPointer()));
        }
    }
}

QVariant DataTableModel::alignment(int column) const {
    const bool right = shownColumns()[column].numeric;
    return QVariant::fromValue(Qt::Alignment(Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft)));
}
