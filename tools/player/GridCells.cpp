#include "GridCells.h"

#include "CommandFailure.h"
#include "Controls.h"
#include "LineText.h"
#include "RuntimeError.h"
#include "Session.h"

namespace {

/// What stands before the bracket and between the brackets.
struct Name {
    QString grid;
    QString inner;
};

Name split(const QString& name) {
    const qsizetype open = name.indexOf(u'[');
    if (open < 0) return {name, {}};
    if (!name.endsWith(u']')) throw CommandFailure{u"%1 lacks its closing bracket"_qs.arg(name)};
    return {name.left(open), name.mid(open + 1, name.size() - open - 2)};
}

DataTable* findGrid(const QString& name) { return Controls::find<DataTable>(name, u"grid"_qs); }

/// Looks into one table of a grid. The table that the program has entered is the current one again
/// afterwards.
class TableOnLook {
public:
    TableOnLook(DataTable* grid, TableHandle table)
        : m_grid(grid) {
        if (table.parentRow >= 0 && !grid->hasChild(table.parentRow))
            throw CommandFailure{u"row %1 has no child table"_qs.arg(table.parentRow)};
        m_before = grid->enter(table);
    }
    ~TableOnLook() { m_grid->enter(m_before); }
    TableOnLook(const TableOnLook&) = delete;
    TableOnLook& operator=(const TableOnLook&) = delete;

    int rowCount() const { return m_grid->rowCount(); }

    QString cell(int row, int column) const {
        const QString text = m_grid->cellText(row, column);
        // A picture is told by its path, which is another one each time.
        const QString folder = programFolder() + u'/';
        return lineText(text.startsWith(folder) ? text.mid(folder.size()) : text);
    }

    /// The grid does not tell how many columns its top level has.
    int columnCount() const {
        int columns = 0;
        try {
            while (rowCount() > 0) {
                m_grid->cellText(0, columns);
                ++columns;
            }
        } catch (const RuntimeError&) {
            return columns;
        }
        return columns;
    }

private:
    DataTable* m_grid;
    TableHandle m_before;
};

TableOnLook look(const QString& tableName) {
    const Name name = split(tableName);
    TableHandle table;
    if (!name.inner.isEmpty()) table.parentRow = GridCells::parseNumber(name.inner);
    return {findGrid(name.grid), table};
}

} // namespace

namespace GridCells {

int parseNumber(const QString& text) {
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber) throw CommandFailure{u"%1 is no number"_qs.arg(text)};
    return number;
}

Row parseRow(const QString& text) {
    const qsizetype slash = text.indexOf(u'/');
    if (slash < 0) return {{}, parseNumber(text)};
    return {{parseNumber(text.left(slash))}, parseNumber(text.mid(slash + 1))};
}

bool isCell(const QString& name) { return name.endsWith(u']'); }

QString cellText(const QString& name) {
    const Name parts = split(name);
    const QStringList place = parts.inner.split(u',');
    if (place.size() != 2) throw CommandFailure{u"%1 is no cell"_qs.arg(name)};
    const Row row = parseRow(place[0]);
    const TableOnLook table(findGrid(parts.grid), row.table);
    return table.cell(row.row, parseNumber(place[1]));
}

QStringList rows(const QString& tableName) {
    const TableOnLook table = look(tableName);
    const int columns = table.columnCount();
    QStringList lines;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < columns; ++column) cells.append(table.cell(row, column));
        lines.append(cells.join(u'|'));
    }
    return lines;
}

int count(const QString& tableName) { return look(tableName).rowCount(); }

QPoint placeOf(DataTable* grid, const QString& name, Row row, int column) {
    const QRect place = grid->revealCell(row.table, row.row, column);
    if (place.isEmpty()) throw CommandFailure{u"%1 has no such place to press on"_qs.arg(name)};
    return place.center();
}

} // namespace GridCells
