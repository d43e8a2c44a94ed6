#pragma once

#include "DataTableColumn.h"
#include "Value.h"

#include <QElapsedTimer>
#include <QTreeView>
#include <QVector>
#include <memory>
#include <span>

class DataTableModel;

/// How selected rows look.
struct SelectionStyle {
    QColor back;
    QColor fore;
    int style = 0;
};

/// Names the table that cells are addressed in: the top level, or the child table of one of its rows.
struct TableHandle {
    int parentRow = -1; ///< -1 is the top level
};

/// The grid of the program: rows and columns from 0, cells as typed values, a row header at the left, no data
/// binding. It may have a second level: then a row of the top level is a category and may own a child table.
/// Row and column numbers refer to the current table. It is the top level unless a child has been entered.
///
/// Appended rows reach the view once per user action, not once per row, so that filling a grid costs little
/// more than storing the values.
class DataTable : public QTreeView {
    Q_OBJECT

public:
    static constexpr int rowHeaderColumn = -5; ///< the column of a press on the row header

    explicit DataTable(QStringView name, QWidget* parent = nullptr);
    ~DataTable() override;

    /// Drops all rows.
    void setColumns(const QVector<GridColumn>& columns);
    /// Sets the columns of every child table and makes the grid a two-level one: rows of the top level then
    /// span the width with the text of `captionColumn`, and the header shows the child columns. Does nothing
    /// if the columns are the same.
    void setChildColumns(const QVector<GridColumn>& columns, int captionColumn);

    /// Shows or hides a column. A hidden column keeps its cells.
    void setColumnShown(int column, bool on);

    /// Lets a click on a head put the rows in the order of its column, a second one turn it round. Rows are
    /// moved, so whatever goes through the grid follows. Cleared rows come back in the order of their
    /// appending. Not for a two-level grid.
    void setSortable();

    /// What stands in the place of the rows where there are none: what to do next.
    void setEmptyHint(const QString& hint);

    int rowCount() const;
    /// Drops the rows of the current table; on the top level the child tables as well.
    void clearRows();
    void appendRow(std::span<const Value> cells);
    void appendRow(std::initializer_list<Value> cells) { appendRow(std::span(cells)); }
    /// Inserts before `row`; appends if `row` is beyond the end. Not for a two-level grid.
    void insertRow(int row, std::span<const Value> cells);
    /// Does nothing if there is no such row.
    void removeRow(int row);
    /// Removes every row that has this text in the column. Not for a two-level grid.
    void removeRowsWithText(int column, const QString& text);
    /// Deselects the first `count` rows, and with all rows of the current table those of other tables.
    void deselectRows(int count);

    /// Error 9 if there is no such cell.
    const Value cell(int row, int column) const;
    /// The cell's text as shown; Null is empty.
    QString cellText(int row, int column) const;
    void setCell(int row, int column, const Value& value);
    /// Finds a cell of exactly this text from `startRow` on (-1 counts as the first row). Returns the row and
    /// sets `startRow` to it, or returns -1.
    int find(int column, int& startRow, const QString& text) const;
    /// The row of the record of this number, which stands in the first column; `otherwise` if there is none.
    int rowOf(const QString& number, int otherwise = -1) const;

    /// Scrolls the row into view, makes it the current one, so that Enter opens it, and tints it until the
    /// grid gets the focus or is left. Takes no focus. A row beyond the end is the last one; of a row in a
    /// collapsed category the category is marked.
    void markRow(int row);

    /// Where a menu for the current row opens: at the pointer, or at the row if a key has asked for it.
    QPoint menuPlace() const { return m_menuPlace; }
    /// Letters typed on the list: the next row that begins with them becomes the current one. Letters that
    /// follow quickly belong to one word; the same letter again goes on to the next row.
    void keyboardSearch(const QString& typed) override;

    SelectionStyle& selectionStyle() { return m_selectionStyle; }

    // Two levels. Rows are here those of the top level, even while a child is the current table; error 9 if
    // there is no such row.

    /// Makes this table the current one. Returns the one that was current before; pass it to return.
    TableHandle enter(TableHandle table);
    /// Gives the row an empty child table in place of any it has. Its rows have the two colours by turns, the
    /// second one softened. Does not expand or collapse the row.
    void createChild(int row, const QColor& back, const QColor& second);
    /// If the child is the current table, the top level becomes the current one.
    void removeChild(int row);
    bool hasChild(int row) const;
    /// Expands or collapses a category, even if it has no child table yet. Called by a handler of a press on
    /// the category, it replaces the expanding or collapsing by the press itself.
    void setOpen(int row, bool open);

    /// Passes the rows appended since the last turn of the event loop to the view. A visible grid does so by
    /// itself, a hidden one when it is shown.
    void publish();
    QVector<QString> visibleHeads() const;
    /// Scrolls a cell into view and returns its rectangle in the viewport, empty if there is none. Column -5
    /// is the row header. Lets the scenario player press where a user would.
    QRect revealCell(TableHandle table, int row, int column);

Q_SIGNALS:
    void OnGridGotFocus();
    void OnGridLostFocus();
    /// A press with the left or right mouse button. Column -5 is the row header; on the text of a category
    /// the column is the caption column. Beyond the rows, row and column are -1. The table of the press is
    /// the current one. A press on a category's row header expands or collapses the category after the
    /// handlers, unless one of them has called setOpen(). The keys Right, Left, + and - emit the same signal.
    void OnGridCellDown(int row, int column);
    /// A double click on a row, or Enter pressed on it (not held down since before). OnGridCellDown comes
    /// before for the first press of a double click. Enter on a category counts as a press on its row header.
    /// A double click on a category's row header emits nothing here: its second press would undo the first.
    void OnGridCellOpen(int row, int column);
    /// The right mouse button or the menu key. OnGridCellDown comes before.
    void OnGridCellMenu();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void dataChanged(const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;

private:
    /// The place of a press.
    struct Spot {
        TableHandle table;
        int row = -1;
        int column = -1;
    };

    Spot spotAt(QPoint position) const;
    Spot spotOf(const QModelIndex& index) const;
    Spot currentSpot() const;
    bool isCategory(const Spot& spot) const;
    void cellDown(const Spot& spot);
    void cellOpen(const Spot& spot);
    bool foldByKey(int key);
    void copyRow() const;
    QVector<int> searchedColumns() const;
    QString clippedText(QPoint position) const;
    void showColumns();
    void columnResized(int section, int width);
    /// The columns that share surplus or missing width: those of texts. Columns of numbers keep their width.
    QVector<int> elasticColumns() const;
    void fitColumns();
    void shareOut(int room);
    QRect spaceBelowRows() const;

    std::unique_ptr<DataTableModel> m_model;
    SelectionStyle m_selectionStyle;
    QPersistentModelIndex m_marked;
    QString m_emptyHint;
    QString m_typed;
    QElapsedTimer m_lastTyped;
    QPoint m_menuPlace;
    TableHandle m_current;
    bool m_publishScheduled = false;
    bool m_opennessTold = false; ///< a handler of the press has called setOpen()
    bool m_fitting = false;
    QVector<bool> m_sizedByUser; ///< such a column keeps its width while another one can give
    QVector<int> m_widths;       ///< as given or set by the user; elastic columns may get more or less
};
