#pragma once

#include "DataTableColumn.h"
#include "Value.h"

#include <QElapsedTimer>
#include <QTreeView>
#include <QVector>
#include <memory>
#include <span>
#include <vector>

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

/// The grid of the program: rows and columns from 0, cells as typed values, a row-header column at the left,
/// no data binding. It can have a second level: a row of the top level may own a child table. Rows and cells
/// are addressed in the current table, which is the top level unless a child has been entered.
///
/// The view learns of appended rows once per user action, not once per row, so that filling it costs little
/// more than keeping the values.
class DataTable : public QTreeView {
    Q_OBJECT

public:
    static constexpr int rowHeaderColumn = -5; ///< the column of a press on the row header

    explicit DataTable(const QString& name, QWidget* parent = nullptr);
    ~DataTable() override;

    /// Drops all rows.
    void setColumns(const QVector<GridColumn>& columns);
    /// The columns of every child table; calling it makes the grid a two-level one: rows of the top level
    /// then span the width with the text of `captionColumn`, and the header shows the child columns. Calling
    /// it again with the same columns changes nothing.
    void setChildColumns(const QVector<GridColumn>& columns, int captionColumn);

    /// Shows or hides a column; its cells are there all the same.
    void setColumnShown(int column, bool on);

    /// Lets a click on a head put the rows in the order of its column, a second one turn it round. Rows are
    /// moved, so whatever goes through the grid follows. Cleared rows come back in the order of their
    /// appending. Not for a two-level grid.
    void setSortable();

    /// What stands in the place of the rows where there are none: what to do next.
    void setEmptyHint(const QString& hint);

    int rowCount() const;
    /// Of the top level: drops the child tables as well.
    void clearRows();
    void appendRow(std::span<const Value> cells);
    void appendRow(std::initializer_list<Value> cells) { appendRow(std::span(cells)); }
    /// A row beyond the end is appended.
    void insertRow(int row, std::span<const Value> cells);
    void insertRow(int row, std::initializer_list<Value> cells) { insertRow(row, std::span(cells)); }
    /// A row that is not there is left alone.
    void removeRow(int row);
    /// Removes every row whose text in the column is this one; gives how many.
    int removeRowsWithText(int column, const QString& text);
    /// Sets or clears the selection of so many rows from the first; rows beyond the end are ignored.
    void selectRows(int first, int count, bool on);

    /// Error 9 for a cell that is not there.
    const Value cell(int row, int column) const;
    /// The cell as it stands on the screen; Null is empty.
    QString cellText(int row, int column) const;
    void setCell(int row, int column, const Value& value);
    /// Looks for a cell of exactly this text from a row on (-1 counts as the first); the start row becomes
    /// the row found. -1 if there is none.
    int find(int column, int& startRow, const QString& text) const;

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
    void refresh();

    // Two levels. Entering gives back what was current before; enter it again to return. The rows named here
    // are those of the top level, whatever is current; error 9 for one that is not there.

    /// A child table that is not there yet is made.
    TableHandle enterChild(int row);
    TableHandle enter(TableHandle table);
    /// During an event it is the table in which the event happened, and stays so until another is entered or
    /// another event comes.
    TableHandle currentTable() const { return m_current; }
    /// An empty child table; one that is there already is replaced. Whether the row is expanded stays as is.
    void createChild(int row);
    /// Where the child is the current table, the top level is current afterwards.
    void removeChild(int row);
    bool hasChild(int row) const;
    /// Shows a category as expanded or collapsed, also while it has no child table yet. Called while a press
    /// on it is being handled, it takes the place of what the press does by itself.
    void setOpen(int row, bool open);
    /// Only where there is a child table. The rows take the colours by turns, the second one softened.
    void setChildColours(int row, const QColor& back, const QColor& second);

    /// Bytes held by rows, cells and shared texts, for the benchmarks.
    std::size_t memoryInUse() const;

    /// Lets the view catch up with the rows appended and cells changed since the last turn of the event loop.
    /// Happens by itself while the grid can be seen; a hidden one catches up when it is shown.
    void publish();
    QVector<QString> visibleHeads() const;
    /// The cell's rectangle in the viewport, scrolled into view; column -5 is the row header. Empty if there
    /// is none. Lets a driver press where a user would.
    QRect revealCell(TableHandle table, int row, int column);

Q_SIGNALS:
    void OnGridGotFocus();
    void OnGridLostFocus();
    /// A press with the left or right button: row -1 is beyond the rows (the column is -1 as well), column -5
    /// the row header. Rows are those of the table in which the press happened, which is then the current
    /// one. A press on a category's row header expands or collapses it after the handlers have run, unless
    /// one of them has called setOpen; the keys Right, Left, + and - do the same through the same event. On
    /// the text of a category the column is the caption column.
    void OnGridCellDown(int row, int column);
    /// Double click, or Enter pressed on a row (not held down from elsewhere); Enter on a category is a press
    /// on its row header. The first press of a double click comes as OnGridCellDown before. Not on the row
    /// header of a category, where the second press would only undo the first.
    void OnGridCellOpen(int row, int column);
    /// Right mouse button, or the menu key; OnGridCellDown comes before.
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
    /// Where a press landed.
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
    void toggle(int row);

    void schedulePublish();
    void showColumns();
    void columnResized(int section, int width);
    /// Columns of texts share what room is left or lacking; numbers keep their width.
    QVector<int> elasticColumns() const;
    void fitColumns();
    void shareOut(int room);
    QModelIndex lastIndex() const;
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
    bool m_opennessTold = false; ///< a handler of the press has said whether the category is open
    bool m_fitting = false;
    QVector<bool> m_sizedByUser; ///< such a column keeps its width as long as another can give
    QVector<int> m_widths;       ///< as given or as the user wants them; elastic columns may get more or less
};
