#pragma once

#include "Value.h"

#include <QTreeView>
#include <QVector>
#include <memory>
#include <vector>

class DataTableModel;

/// How selected rows look.
struct SelectionStyle {
    QColor back;
    QColor fore;
    int style = 0;
};

/// A column of a grid. `width` is in pixels at 100 %; the last visible column takes what room is left.
struct GridColumn {
    QString head;
    int width = 100;
    bool numeric = false; ///< right-aligned
    int minimumWidth = 24;
    bool picture = false; ///< the cell holds the path of a picture
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

    void setColumns(const QVector<GridColumn>& columns);
    /// The columns of every child table; calling it makes the grid a two-level one: rows of the top level then
    /// span the width with the text of `captionColumn`, and the header shows the child columns.
    void setChildColumns(const QVector<GridColumn>& columns, int captionColumn);

    int rowCount() const;
    void clearRows();
    void appendRow(std::vector<Value> cells);
    /// A row beyond the end is appended.
    void insertRow(int row, std::vector<Value> cells);
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
    /// Looks for a cell of exactly this text from a row on (-1 counts as the first); the start row becomes the
    /// row found. -1 if there is none.
    int find(int column, int& startRow, const QString& text) const;

    SelectionStyle& selectionStyle() { return m_selectionStyle; }
    void refresh();

    // Two levels. Entering gives back what was current before; enter it again to return.
    TableHandle enterChild(int row);
    TableHandle enter(TableHandle table);
    TableHandle currentTable() const { return m_current; }
    void createChild(int row);
    void removeChild(int row);
    bool hasChild(int row) const;
    void setChildColours(int row, const QColor& back, const QColor& second);

    /// Bytes held by rows, cells and shared texts, for the benchmarks.
    std::size_t memoryInUse() const;

    /// Lets the view catch up with rows appended since the last turn of the event loop.
    void publish();
    QVector<QString> visibleHeads() const;
    /// The cell's rectangle in the viewport, scrolled into view; column -5 is the row header. Empty if there is
    /// none. Lets a driver press where a user would.
    QRect revealCell(TableHandle table, int row, int column);

Q_SIGNALS:
    void OnGridGotFocus();
    void OnGridLostFocus();
    /// A press: row -1 is beyond the rows, column -5 the row header. Rows are those of the table in which the
    /// press happened, which is then the current one.
    void OnGridCellDown(int row, int column);
    void OnGridCellOpen(int row, int column); ///< double click, or Enter on a row
    void OnGridCellMenu();                    ///< right mouse button, or the menu key

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    std::unique_ptr<DataTableModel> m_model;
    SelectionStyle m_selectionStyle;
    TableHandle m_current;
};
