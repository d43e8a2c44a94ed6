#include "DataTable.h"

#include "DataTableHeader.h"
#include "DataTableModel.h"
#include "DataTableShapes.h"
#include "RuntimeError.h"

#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

namespace {

/// Makes all rows as high as one line of text and some space.
class OneLine : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const int width = QStyledItemDelegate::sizeHint(option, index).width() + 2 * DataTableShapes::padding;
        return {width, option.fontMetrics.height() + 8};
    }
};

} // namespace

DataTable::DataTable(QStringView name, QWidget* parent)
    : QTreeView(parent)
    , m_model(std::make_unique<DataTableModel>()) {
    setObjectName(name);
    setAccessibleName(name.toString());
    setHeader(new DataTableHeader(*m_model, this));
    setModel(m_model.get());
    setItemDelegate(new OneLine(this));
    setUniformRowHeights(true);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    // The grid expands rows itself: the view would do it without calling the handlers.
    setRootIsDecorated(false);
    setIndentation(0);
    setItemsExpandable(false);
    setExpandsOnDoubleClick(false);

    connect(header(), &QHeaderView::sectionResized, this,
            [this](int section, int /*before*/, int width) { columnResized(section, width); });
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] {
        header()->viewport()->update();
        viewport()->update();
    });
}

DataTable::~DataTable() = default;

void DataTable::setColumns(const QVector<GridColumn>& columns) {
    m_current = {};
    m_model->setColumns(columns);
    showColumns();
}

void DataTable::setChildColumns(const QVector<GridColumn>& columns, int captionColumn) {
    if (!m_model->setChildColumns(columns, captionColumn)) return;
    m_current = {};
    showColumns();
}

void DataTable::setColumnShown(int column, bool on) {
    {
        const QScopedValueRollback fitting(m_fitting, true);
        header()->setSectionHidden(column, !on);
    }
    fitColumns();
}

int DataTable::rowCount() const { return m_model->rows(m_current.parentRow).rowCount(); }

void DataTable::setSortable() {
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
}

void DataTable::setEmptyHint(const QString& hint) {
    m_emptyHint = hint;
    setAccessibleDescription(hint);
}

void DataTable::clearRows() {
    if (isSortingEnabled()) header()->setSortIndicator(-1, Qt::AscendingOrder);
    m_model->clear(m_current.parentRow);
}

void DataTable::appendRow(std::span<const Value> cells) {
    m_model->append(m_current.parentRow, cells);
    if (m_publishScheduled || !isVisible()) return;
    m_publishScheduled = true;
    const auto publishAll = [this] {
        m_publishScheduled = false;
        publish();
    };
    QMetaObject::invokeMethod(this, publishAll, Qt::QueuedConnection);
}

void DataTable::insertRow(int row, std::span<const Value> cells) {
    if (row >= rowCount()) return appendRow(cells);
    m_model->insert(row, cells);
}

void DataTable::removeRow(int row) { m_model->remove(m_current.parentRow, row); }

void DataTable::removeRowsWithText(int column, const QString& text) { m_model->removeWithText(column, text); }

void DataTable::deselectRows(int count) {
    // No more than one row is selected at a time.
    const QModelIndexList selected = selectionModel()->selectedRows();
    if (count >= rowCount() || (!selected.isEmpty() && selected.first().row() < count)) clearSelection();
}

const Value DataTable::cell(int row, int column) const {
    return m_model->rows(m_current.parentRow).value(row, column);
}

QString DataTable::cellText(int row, int column) const {
    return m_model->rows(m_current.parentRow).text(row, column);
}

void DataTable::setCell(int row, int column, const Value& value) {
    m_model->set(m_current.parentRow, row, column, value);
}

int DataTable::find(int column, int& startRow, const QString& text) const {
    const int row = m_model->rows(m_current.parentRow).find(column, startRow, text);
    if (row >= 0) startRow = row;
    return row;
}

int DataTable::rowOf(const QString& number, int otherwise) const {
    int row = 0;
    return find(0, row, number) < 0 ? otherwise : row;
}

void DataTable::markRow(int row) {
    publish();
    QModelIndex index = m_model->indexOf(m_current.parentRow, std::min(row, rowCount() - 1), 0);
    if (index.parent().isValid() && !isExpanded(index.parent())) index = index.parent();
    if (!index.isValid()) return;
    m_marked = index;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::Clear);
    scrollTo(index);
    viewport()->update();
}

TableHandle DataTable::enter(TableHandle table) {
    if (table.parentRow != DataTableModel::top && !m_model->hasChild(table.parentRow))
        throw runtimeError(RuntimeError::outOfRange);
    return std::exchange(m_current, table);
}

void DataTable::createChild(int row, const QColor& back, const QColor& second) {
    m_model->createChild(row, back, second);
    viewport()->update();
}

void DataTable::removeChild(int row) {
    m_model->removeChild(row);
    if (m_current.parentRow == row) m_current = {};
    viewport()->update();
}

bool DataTable::hasChild(int row) const { return m_model->hasChild(row); }

void DataTable::publish() { m_model->publish(); }

QVector<QString> DataTable::visibleHeads() const {
    QVector<QString> heads;
    const auto& columns = m_model->shownColumns();
    for (int column = 0; column < columns.size(); ++column) {
        if (!isColumnHidden(column)) heads.push_back(columns[column].head);
    }
    return heads;
}

QRect DataTable::revealCell(TableHandle table, int row, int column) {
    publish();
    if (row < 0) return spaceBelowRows();
    if (table.parentRow != DataTableModel::top && !m_model->hasChild(table.parentRow)) return {};
    if (table.parentRow != DataTableModel::top)
        expand(m_model->indexOf(DataTableModel::top, table.parentRow, 0));
    const QModelIndex index = m_model->indexOf(table.parentRow, row, std::max(column, 0));
    if (!index.isValid()) return {};
    scrollTo(index);
    const QRect line(0, visualRect(index.siblingAtColumn(m_model->gutterColumn())).top(), viewport()->width(),
                     rowHeight(index));
    if (column == rowHeaderColumn)
        return line.intersected(QRect(0, 0, DataTableShapes::gutterWidth, height()));
    const QRect cells = line.adjusted(DataTableShapes::gutterWidth, 0, 0, 0);
    return m_model->isCategory(index) ? cells : visualRect(index).intersected(cells);
}

QRect DataTable::spaceBelowRows() const {
    QModelIndex last = m_model->index(m_model->rowCount() - 1, 0);
    const int children = isExpanded(last) ? m_model->rowCount(last) : 0;
    if (children > 0) last = m_model->index(children - 1, 0, last);
    const int top =
        last.isValid() ? visualRect(last.siblingAtColumn(m_model->gutterColumn())).bottom() + 1 : 0;
    return {0, top, viewport()->width(), std::max(0, viewport()->height() - top)};
}

void DataTable::showColumns() {
    QHeaderView* heads = header();
    for (int section = 0; section < heads->count(); ++section) {
        heads->moveSection(heads->visualIndex(section), section);
    }
    const int gutter = m_model->gutterColumn();
    const auto& columns = m_model->shownColumns();
    if (columns.isEmpty()) return;
    const QScopedValueRollback fitting(m_fitting, true);
    m_widths.clear();
    m_sizedByUser.fill(false, columns.size());
    for (int column = 0; column < columns.size(); ++column) {
        m_widths.push_back(std::max(columns[column].width, columns[column].minimumWidth));
        heads->setSectionResizeMode(column, QHeaderView::Interactive);
        heads->setSectionHidden(column, columns[column].width <= 0);
    }
    heads->moveSection(heads->visualIndex(gutter), 0);
    heads->setSectionHidden(gutter, false);
    heads->setSectionResizeMode(gutter, QHeaderView::Fixed);
    heads->resizeSection(gutter, DataTableShapes::gutterWidth);
    fitColumns();
}

void DataTable::columnResized(int section, int width) {
    if (m_fitting || section >= m_widths.size()) return;
    // Width 0 comes while a column is being hidden, not from the user.
    if (width > 0) {
        m_widths[section] = std::max(width, m_model->shownColumns()[section].minimumWidth);
        m_sizedByUser[section] = true;
    }
    fitColumns();
}

QVector<int> DataTable::elasticColumns() const {
    const auto& columns = m_model->shownColumns();
    QVector<int> elastic;
    int last = -1;
    for (int column = 0; column < m_widths.size(); ++column) {
        if (header()->sectionSize(column) == 0) continue;
        last = column;
        const GridColumn& given = columns[column];
        if (!given.numeric && !given.picture && !given.fixed && !m_sizedByUser[column])
            elastic.push_back(column);
    }
    if (elastic.isEmpty() && last >= 0) elastic.push_back(last);
    return elastic;
}

void DataTable::fitColumns() {
    // The view asks while the columns change, before showColumns() knows their widths.
    if (m_widths.size() != m_model->gutterColumn()) return;
    const QScopedValueRollback fitting(m_fitting, true);
    QHeaderView* heads = header();
    int room = viewport()->width() - DataTableShapes::gutterWidth;
    for (int column = 0; column < m_widths.size(); ++column) {
        if (heads->sectionSize(column) == 0) continue;
        heads->resizeSection(column, m_widths[column]);
        room -= m_widths[column];
    }
    shareOut(room);
}

// Shares out surplus width by the columns' widths, and missing width by how much each column can give.
void DataTable::shareOut(int room) {
    const QVector<int> elastic = elasticColumns();
    const auto narrowest = [&](int column) {
        return std::min(m_widths[column], m_model->shownColumns()[column].narrowest());
    };
    const bool lacks = room < 0;
    const auto weight = [&](int column) { return m_widths[column] - (lacks ? narrowest(column) : 0); };
    int weights = 0;
    for (const int column : elastic) weights += weight(column);
    for (const int column : elastic) {
        const int share = room * weight(column) / std::max(weights, 1);
        header()->resizeSection(column, std::max(m_widths[column] + share, narrowest(column)));
        room -= share;
        weights -= weight(column);
    }
}

void DataTable::showEvent(QShowEvent* event) {
    m_marked = QModelIndex();
    publish();
    QTreeView::showEvent(event);
}

void DataTable::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    fitColumns();
}

void DataTable::dataChanged(const QModelIndex&, const QModelIndex&, const QVector<int>&) {
    // The view would look for the place of each changed cell to find what to paint, which is slow.
    viewport()->update();
}
