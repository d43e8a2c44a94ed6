#include "DataTableModel.h"

#include "DataTableOrder.h"
#include "RuntimeError.h"

namespace {

/// A fifth of the way to the other colour: enough to tell rows apart even though that colour may be garish.
QColor towards(const QColor& from, const QColor& to) {
    const auto part = [](int a, int b) { return (a * 4 + b) / 5; };
    return QColor(part(from.red(), to.red()), part(from.green(), to.green()), part(from.blue(), to.blue()));
}

} // namespace

DataTableModel::DataTableModel()
    : m_top(std::make_unique<Table>(0, top)) {}

void DataTableModel::setColumns(const QVector<GridColumn>& columns) {
    m_columns = columns;
    clear(top);
}

bool DataTableModel::setChildColumns(const QVector<GridColumn>& columns, int captionColumn) {
    if (columns == m_childColumns && captionColumn == m_captionColumn) return false;
    beginResetModel();
    m_childColumns = columns;
    m_captionColumn = captionColumn;
    m_children.clear();
    m_children.resize(static_cast<std::size_t>(m_top->rowCount()));
    endResetModel();
    return true;
}

void DataTableModel::clear(int owner) {
    if (owner != top) return dropRows(table(owner));
    beginResetModel();
    m_children.clear();
    m_top = std::make_unique<Table>(static_cast<int>(m_columns.size()), top);
    endResetModel();
}

void DataTableModel::append(int owner, std::span<const Value> cells) {
    Table& longer = table(owner);
    longer.insert(longer.rowCount(), cells);
    if (owner == top && isTwoLevel()) m_children.emplace_back();
}

void DataTableModel::remove(int owner, int row) {
    Table& changed = table(owner);
    if (row < 0 || row >= changed.rowCount()) return;
    publish();
    beginRemoveRows(ownerIndex(changed), row, row);
    changed.remove(row);
    --changed.published;
    if (owner == top && isTwoLevel()) {
        m_children.erase(m_children.begin() + row);
        for (auto later = m_children.begin() + row; later != m_children.end(); ++later)
            if (*later) --(*later)->owner;
    }
    endRemoveRows();
}

void DataTableModel::set(int owner, int row, int column, const Value& value) {
    Table& changed = table(owner);
    changed.set(row, column, value);
    if (row >= changed.published) return;
    const Table* const shown = owner == top ? nullptr : &changed;
    Q_EMIT dataChanged(createIndex(row, 0, shown), createIndex(row, gutterColumn(), shown));
}

void DataTableModel::insert(int row, std::span<const Value> cells) {
    if (row < 0 || row > m_top->rowCount()) throw runtimeError(RuntimeError::outOfRange);
    publish();
    beginInsertRows({}, row, row);
    m_top->insert(row, cells);
    ++m_top->published;
    endInsertRows();
}

// Published as one change of layout: one removal for each run of rows would be slow for a long list, and a
// reset would lose the current row.
void DataTableModel::removeWithText(int column, const QString& text) {
    int hit = m_top->find(column, 0, text);
    if (hit < 0) return;
    std::vector<int> rest;
    for (int row = 0; row < m_top->rowCount(); ++row) {
        if (row == hit)
            hit = m_top->find(column, row + 1, text);
        else
            rest.push_back(row);
    }
    arrange(rest);
}

void DataTableModel::sort(int column, Qt::SortOrder order) {
    if (column >= 0 && column < gutterColumn())
        arrange(orderedRows(*m_top, column, m_columns[column], order));
}

/// For each place the row that comes there. Rows that come nowhere are removed.
void DataTableModel::arrange(const std::vector<int>& from) {
    publish();
    constexpr int nowhere = -1;
    std::vector<int> to(static_cast<std::size_t>(m_top->rowCount()), nowhere);
    for (std::size_t place = 0; place < from.size(); ++place)
        to[static_cast<std::size_t>(from[place])] = static_cast<int>(place);
    Q_EMIT layoutAboutToBeChanged();
    m_top->reorder(from);
    m_top->published = m_top->rowCount();
    for (const QModelIndex& old : persistentIndexList())
        changePersistentIndex(old, index(to[static_cast<std::size_t>(old.row())], old.column()));
    Q_EMIT layoutChanged();
}

void DataTableModel::createChild(int row, const QColor& back, const QColor& second) {
    if (row < 0 || static_cast<std::size_t>(row) >= m_children.size())
        throw runtimeError(RuntimeError::outOfRange);
    removeChild(row);
    auto& made = m_children[static_cast<std::size_t>(row)];
    made = std::make_unique<Table>(static_cast<int>(m_childColumns.size()), row);
    made->back = back;
    made->second = second;
}

void DataTableModel::removeChild(int row) {
    Table* removed = child(row);
    if (!removed) return;
    dropRows(*removed);
    m_children[static_cast<std::size_t>(row)].reset();
}

QColor DataTableModel::childColour(const QModelIndex& index) const {
    const auto* shown = static_cast<const Table*>(index.internalPointer());
    return index.row() % 2 == 0 ? shown->back : towards(shown->back, shown->second);
}

void DataTableModel::publish() {
    publish(*m_top);
    for (const auto& one : m_children)
        if (one) publish(*one);
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
    if (parent.internalPointer() || parent.column() != 0) return 0;
    const Table* shown = child(parent.row());
    return shown ? shown->published : 0;
}

int DataTableModel::columnCount(const QModelIndex& /*parent*/) const {
    return shownColumns().isEmpty() ? 0 : gutterColumn() + 1;
}

Qt::ItemFlags DataTableModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags usual = QAbstractItemModel::flags(index);
    return !index.isValid() || isCategory(index) ? usual : usual | Qt::ItemNeverHasChildren;
}

QVariant DataTableModel::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || !index.isValid() || index.column() == gutterColumn()) return {};
    if (isCategory(index)) return index.column() == 0 ? m_top->text(index.row(), m_captionColumn) : QString();
    if (shownColumns()[index.column()].picture) return {};
    return rows(tableOf(index)).text(index.row(), index.column());
}

QVariant DataTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    const bool isHead = orientation == Qt::Horizontal && section >= 0 && section < gutterColumn();
    return isHead && role == Qt::DisplayRole ? shownColumns()[section].head : QVariant();
}

DataTableModel::Table& DataTableModel::table(int owner) const {
    Table* found = owner == top ? m_top.get() : child(owner);
    if (!found) throw runtimeError(RuntimeError::outOfRange);
    return *found;
}

DataTableModel::Table* DataTableModel::child(int row) const {
    const auto place = static_cast<std::size_t>(row);
    return row >= 0 && place < m_children.size() ? m_children[place].get() : nullptr;
}

QModelIndex DataTableModel::ownerIndex(const Table& table) const {
    return table.owner == top ? QModelIndex() : createIndex(table.owner, 0);
}

void DataTableModel::dropRows(Table& table) {
    const bool known = table.published > 0;
    if (known) beginRemoveRows(ownerIndex(table), 0, table.published - 1);
    table.clear();
    table.published = 0;
    if (known) endRemoveRows();
}

void DataTableModel::publish(Table& table) {
    if (table.published == table.rowCount()) return;
    beginInsertRows(ownerIndex(table), table.published, table.rowCount() - 1);
    table.published = table.rowCount();
    endInsertRows();
}
