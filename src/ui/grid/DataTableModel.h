#pragma once

#include "DataTableColumn.h"
#include "DataTableRows.h"
#include <span>

#include <QAbstractItemModel>
#include <QColor>
#include <QVector>

/// What the grid shows: one table at the top and, in a two-level grid, a child table for some of its rows.
/// Tables are named by the row that owns them, -1 being the top. A table or cell that is not there is
/// error 9.
///
/// The rows proper run ahead of what the view knows: appended rows and changed cells are only told by
/// publish(). Everything else is told at once, for the rows that the view knows already.
///
/// For the view a column is the column of the cells, and behind the last one stands one more, the row header.
class DataTableModel : public QAbstractItemModel {
    Q_OBJECT

public:
    static constexpr int top = -1;
    static constexpr int linesRole = Qt::UserRole; ///< a head on two lines, or empty

    explicit DataTableModel(QObject* parent = nullptr);
    ~DataTableModel() override;

    /// Drops all rows.
    void setColumns(const QVector<GridColumn>& columns);
    /// Makes it a two-level grid. Drops all child tables and gives true, unless the columns are what they
    /// were.
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
    /// The background of a child row, by turns of two.
    QColor childColour(const QModelIndex& index) const;

    void publish();
    std::size_t memoryInUse() const;

    /// The table that the row of the view stands in.
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
    bool m_behind = false; ///< there is something that the view has not been told
};
