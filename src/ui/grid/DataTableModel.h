#pragma once

#include "DataTableColumn.h"
#include "DataTableRows.h"
#include <span>

#include <QAbstractItemModel>
#include <QColor>
#include <QVector>

/// The contents of the grid: one table at the top and, in a two-level grid, a child table for some of its
/// rows. A table is named by the row that owns it, -1 being the top. Error 9 if there is no such table or
/// cell.
///
/// Appended rows and changed cells reach the view with publish(), once for many. Insert, remove and clear
/// reach it at once, for the rows published before.
///
/// The view's columns are those of the cells, and after the last one the row header.
class DataTableModel : public QAbstractItemModel {
    Q_OBJECT

public:
    static constexpr int top = -1;
    static constexpr int linesRole = Qt::UserRole; ///< a head on two lines, or empty

    explicit DataTableModel(QObject* parent = nullptr);
    ~DataTableModel() override;

    /// Drops all rows.
    void setColumns(const QVector<GridColumn>& columns);
    /// Makes it a two-level grid. Drops all child tables and returns true, or returns false if nothing
    /// changes.
    bool setChildColumns(const QVector<GridColumn>& columns, int captionColumn);
    bool isTwoLevel() const { return !m_childColumns.isEmpty(); }
    /// The columns in the view's header.
    const QVector<GridColumn>& shownColumns() const { return isTwoLevel() ? m_childColumns : m_columns; }
    int captionColumn() const { return m_captionColumn; }
    int gutterColumn() const { return static_cast<int>(shownColumns().size()); }

    int rows(int table) const;
    void clear(int table);
    void append(int table, std::span<const Value> cells);
    void append(int table, std::initializer_list<Value> cells) { append(table, std::span(cells)); }
    void insert(int table, int row, std::span<const Value> cells);
    void insert(int table, int row, std::initializer_list<Value> cells) {
        insert(table, row, std::span(cells));
    }
    void remove(int table, int row);
    int removeWithText(int table, int column, const QString& text);
    Value value(int table, int row, int column) const;
    QString text(int table, int row, int column) const;
    void set(int table, int row, int column, const Value& value);
    int find(int table, int column, int first, const QString& text) const;

    void createChild(int row);
    void removeChild(int row);
    bool hasChild(int row) const { return child(row) != nullptr; }
    void setChildColours(int row, const QColor& back, const QColor& second);
    /// The background of a child row: its table's two colours by turns.
    QColor childColour(const QModelIndex& index) const;

    void publish();
    std::size_t memoryInUse() const;

    /// The table that a row of the view belongs to.
    int tableOf(const QModelIndex& index) const;
    QModelIndex indexOf(int table, int row, int column) const;
    bool isCategory(const QModelIndex& index) const { return isTwoLevel() && !index.internalPointer(); }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Puts the rows of the top level in the order of a column. Not for a two-level grid.
    void sort(int column, Qt::SortOrder order) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Table;

    Table& table(int owner);
    const Table& table(int owner) const;
    Table* child(int row) const;
    Table* shownChild(const QModelIndex& parent) const;
    QModelIndex ownerIndex(const Table& table) const;
    void dropRows(Table& table);
    void dropAll();
    void renumberChildren();
    void publish(Table& table);
    void tellChanges(Table& table);
    void eraseChildren(const std::vector<int>& rows);
    void movePersistentIndexes(const Table& table, const std::vector<int>& removed);
    QVariant alignment(int column) const;

    QVector<GridColumn> m_columns;
    QVector<GridColumn> m_childColumns;
    int m_captionColumn = 0;
    std::unique_ptr<Table> m_top;
    /// One for each row of the top level in a two-level grid, else empty.
    std::vector<std::unique_ptr<Table>> m_children;
    bool m_behind = false; ///< some rows or changes are not published
};
