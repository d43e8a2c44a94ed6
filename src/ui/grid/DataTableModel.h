#pragma once

#include "DataTableColumn.h"
#include "DataTableRows.h"

#include <QAbstractItemModel>
#include <QColor>
#include <QVector>

/// The contents of the grid: one table at the top and, in a two-level grid, a child table for some of its
/// rows. A table is named by the row that owns it, -1 being the top. Error 9 if there is no such table or
/// cell.
///
/// Appended rows reach the view with publish(), once for many. Every other change publishes them and reaches
/// it at once.
///
/// The view's columns are those of the cells, and after the last one the row header.
class DataTableModel : public QAbstractItemModel {
    Q_OBJECT

public:
    static constexpr int top = -1;

    DataTableModel();

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

    const DataTableRows& rows(int owner) const { return table(owner); }
    void clear(int owner);
    void append(int owner, std::span<const Value> cells);
    void remove(int owner, int row);
    void set(int owner, int row, int column, const Value& value);

    // The top level of a grid without a second one.
    void insert(int row, std::span<const Value> cells);
    void removeWithText(int column, const QString& text);
    void sort(int column, Qt::SortOrder order) override;

    void createChild(int row, const QColor& back, const QColor& second);
    void removeChild(int row);
    bool hasChild(int row) const { return child(row) != nullptr; }
    /// The background of a child row: its table's two colours by turns, the second one softened.
    QColor childColour(const QModelIndex& index) const;

    void publish();

    /// The table that a row of the view belongs to.
    int tableOf(const QModelIndex& index) const;
    QModelIndex indexOf(int owner, int row, int column) const;
    bool isCategory(const QModelIndex& index) const { return isTwoLevel() && !index.internalPointer(); }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Table : DataTableRows {
        Table(int columns, int ownerRow)
            : DataTableRows(columns)
            , owner(ownerRow) {}

        int owner;
        int published = 0; ///< number of rows known to the view
        QColor back;
        QColor second;
    };

    Table& table(int owner) const;
    Table* child(int row) const;
    QModelIndex ownerIndex(const Table& table) const;
    void dropRows(Table& table);
    void publish(Table& table);
    void arrange(const std::vector<int>& from);

    QVector<GridColumn> m_columns;
    QVector<GridColumn> m_childColumns;
    int m_captionColumn = 0;
    std::unique_ptr<Table> m_top;
    /// One for each row of the top level in a two-level grid, else empty.
    std::vector<std::unique_ptr<Table>> m_children;
};
