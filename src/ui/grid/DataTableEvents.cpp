#include "DataTable.h"

#include "DataTableModel.h"
#include "DataTableShapes.h"
#include "FocusMove.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPointer>
#include <QTextDocument>
#include <QToolTip>

// Turns the user's actions into the grid's events. Handlers may change the rows and even close the screen
// with the grid, so no code touches the grid after an event without checking that it is alive.

DataTable::Spot DataTable::spotOf(const QModelIndex& index) const {
    if (!index.isValid()) return {};
    const bool gutter = index.column() == m_model->gutterColumn();
    const int column = m_model->isCategory(index) ? m_model->captionColumn() : index.column();
    return {{m_model->tableOf(index)}, index.row(), gutter ? rowHeaderColumn : column};
}

DataTable::Spot DataTable::spotAt(QPoint position) const {
    Spot spot = spotOf(indexAt(position));
    if (spot.row >= 0 && position.x() < DataTableShapes::gutterWidth) spot.column = rowHeaderColumn;
    return spot;
}

/// The place that a key refers to. After a press on a row header the row header is the current cell, but a
/// key refers to the row.
DataTable::Spot DataTable::currentSpot() const {
    const QModelIndex index = currentIndex();
    return spotOf(index.column() == m_model->gutterColumn() ? index.siblingAtColumn(0) : index);
}

bool DataTable::isCategory(const Spot& spot) const {
    return m_model->isTwoLevel() && spot.row >= 0 && spot.table.parentRow == DataTableModel::top;
}

void DataTable::cellDown(const Spot& spot) {
    m_current = spot.table;
    m_opennessTold = false;
    const QPointer<DataTable> alive(this);
    Q_EMIT OnGridCellDown(spot.row, spot.column);
    if (!alive || !isCategory(spot) || spot.column != rowHeaderColumn || m_opennessTold) return;
    publish();
    if (m_model->hasChild(spot.row))
        setOpen(spot.row, !isExpanded(m_model->indexOf(DataTableModel::top, spot.row, 0)));
}

void DataTable::cellOpen(const Spot& spot) {
    m_current = spot.table;
    Q_EMIT OnGridCellOpen(spot.row, spot.column);
}

void DataTable::setOpen(int row, bool open) {
    m_opennessTold = true;
    publish();
    setExpanded(m_model->indexOf(DataTableModel::top, row, 0), open);
}

/// Right and + expand a collapsed category, Left and - collapse an expanded one.
bool DataTable::foldByKey(int key) {
    const bool opens = key == Qt::Key_Right || key == Qt::Key_Plus;
    const bool closes = key == Qt::Key_Left || key == Qt::Key_Minus;
    Spot spot = currentSpot();
    if ((!opens && !closes) || !isCategory(spot)) return false;
    if (isExpanded(currentIndex().siblingAtColumn(0)) == opens) return false;
    spot.column = rowHeaderColumn;
    cellDown(spot);
    return true;
}

void DataTable::mousePressEvent(QMouseEvent* event) {
    publish();
    const Spot spot = spotAt(event->position().toPoint());
    QTreeView::mousePressEvent(event);
    if (event->button() == Qt::LeftButton || event->button() == Qt::RightButton) cellDown(spot);
}

void DataTable::mouseMoveEvent(QMouseEvent* event) {
    // Dragging would move the selection away from the row that the handlers got.
    if (event->buttons() == Qt::NoButton) QTreeView::mouseMoveEvent(event);
}

void DataTable::mouseDoubleClickEvent(QMouseEvent* event) {
    const Spot spot = spotAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || spot.row < 0) return;
    if (isCategory(spot) && spot.column == rowHeaderColumn) return;
    cellOpen(spot);
}

void DataTable::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    const QPointer<DataTable> alive(this);
    m_menuPlace = event->globalPos();
    if (event->reason() == QContextMenuEvent::Keyboard) {
        scrollTo(currentIndex());
        m_menuPlace = viewport()->mapToGlobal(visualRect(currentIndex().siblingAtColumn(0)).bottomLeft());
        cellDown(currentSpot());
    }
    if (alive) Q_EMIT OnGridCellMenu();
}

void DataTable::keyPressEvent(QKeyEvent* event) {
    publish();
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    // An Enter held down is meant for the control that had the focus at its press, such as a search field.
    if (enter && event->isAutoRepeat()) return;
    if (enter && currentIndex().isValid()) {
        Spot spot = currentSpot();
        if (!isCategory(spot)) return cellOpen(spot);
        spot.column = rowHeaderColumn;
        cellDown(spot);
    } else if (event->matches(QKeySequence::Copy)) {
        copyRow();
    } else if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, {}, {});
        contextMenuEvent(&menu);
    } else if (!foldByKey(event->key())) {
        QTreeView::keyPressEvent(event);
    }
}

/// As the columns stand, with tabs between them: so it goes into a spreadsheet or a letter.
void DataTable::copyRow() const {
    const QModelIndex row = currentIndex();
    if (!row.isValid()) return;
    QStringList cells;
    for (int column = 0; column < m_model->gutterColumn(); ++column)
        if (!isColumnHidden(column)) cells.append(row.siblingAtColumn(column).data().toString());
    if (m_model->isCategory(row)) cells = {row.siblingAtColumn(0).data().toString()};
    QApplication::clipboard()->setText(cells.join(u'\t'));
}

/// The column by which the rows are sorted, the one of names, then the others from the left.
QVector<int> DataTable::searchedColumns() const {
    QVector<int> columns;
    const auto add = [&](int column) {
        if (!isColumnHidden(column) && !columns.contains(column)) columns.append(column);
    };
    const auto& shown = m_model->shownColumns();
    if (isSortingEnabled() && header()->sortIndicatorSection() >= 0) add(header()->sortIndicatorSection());
    for (const bool named : {true, false})
        for (int column = 0; column < shown.size(); ++column)
            if (shown[column].name || !named) add(column);
    return columns;
}

void DataTable::keyboardSearch(const QString& typed) {
    publish();
    const QModelIndex current = currentIndex();
    if (!current.isValid() || typed.trimmed().isEmpty()) return;
    const bool goesOn =
        m_lastTyped.isValid() && !m_lastTyped.hasExpired(QApplication::keyboardInputInterval());
    m_lastTyped.start();
    const bool again = goesOn && m_typed == typed;
    m_typed = goesOn && !again ? m_typed + typed : typed;
    const int rows = m_model->rowCount(current.parent());
    const int first = current.row() + (goesOn && !again ? 0 : 1);
    const bool category = m_model->isCategory(current);
    for (const int column : category ? QVector<int>{0} : searchedColumns()) {
        const QModelIndex from = m_model->index(first % rows, column, current.parent());
        const auto found = m_model->match(from, Qt::DisplayRole, m_typed);
        if (!found.isEmpty()) return setCurrentIndex(found.first().siblingAtColumn(current.column()));
    }
}

void DataTable::focusInEvent(QFocusEvent* event) {
    QTreeView::focusInEvent(event);
    if (!movesFocus(event->reason())) return;
    m_marked = QModelIndex();
    Q_EMIT OnGridGotFocus();
}

void DataTable::focusOutEvent(QFocusEvent* event) {
    QTreeView::focusOutEvent(event);
    update(); // Qt forgets the frame around the rows, which shows the focus too
    if (movesFocus(event->reason())) Q_EMIT OnGridLostFocus();
}

bool DataTable::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QTreeView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const QString text = clippedText(help->pos());
    // Converted, since a name that looks like markup would be read as such and could show any file of the
    // disk.
    QToolTip::showText(help->globalPos(), Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text,
                       viewport());
    return true;
}

/// The text of the cell at the position if it is cut off, else an empty text.
QString DataTable::clippedText(QPoint position) const {
    const QModelIndex index = indexAt(position);
    if (!index.isValid() || m_model->isCategory(index)) return {};
    if (m_model->shownColumns()[index.column()].tick) return {};
    const QString text = index.data().toString();
    const int room = columnWidth(index.column()) - 2 * DataTableShapes::padding;
    return fontMetrics().horizontalAdvance(text) > room ? text : QString();
}
