#include "GridCells.h"

#include "CommandFailure.h"
#include "Controls.h"
#include "DataTableModel.h"
#include "LineText.h"
#include "RuntimeError.h"
#include "Session.h"

using namespace Qt::StringLiterals;

namespace {

/// The parts of `grid[inner]`.
struct Name {
    QString grid;
    QString inner;
};

Name split(const QString& name) {
    const qsizetype open = name.indexOf(u'[');
    if (open < 0) return {name, {}};
    if (!name.endsWith(u']')) throw CommandFailure{u"%1 lacks its closing bracket"_s.arg(name)};
    return {name.left(open), name.mid(open + 1, name.size() - open - 2)};
}

/// Reads one table of a grid from its model, whatever table the program has entered.
class Cells {
public:
    Cells(const QString& grid, TableHandle table)
        : m_model(qobject_cast<DataTableModel*>(Controls::find<DataTable>(grid, u"grid"_s)->model()))
        , m_owner(table.parentRow) {
        if (m_owner != DataTableModel::top && !m_model->hasChild(m_owner))
            throw CommandFailure{u"row %1 has no child table"_s.arg(m_owner)};
    }

    int rowCount() const { return m_model->rows(m_owner).rowCount(); }

    QString text(int row, int column) const {
        const QString text = m_model->rows(m_owner).text(row, column);
        // The cell of a picture is its path. The program folder differs each time.
        const QString folder = programFolder() + u'/';
        return lineText(text.startsWith(folder) ? text.mid(folder.size()) : text);
    }

    /// All cells of a row joined by |. The model ends them with an error.
    QString line(int row) const {
        QStringList cells;
        try {
            for (int column = 0;; ++column) cells.append(text(row, column));
        } catch (const RuntimeError&) {
            return cells.join(u'|');
        }
    }

private:
    const DataTableModel* m_model;
    int m_owner;
};

Cells look(const QString& tableName) {
    const Name name = split(tableName);
    return {name.grid, {name.inner.isEmpty() ? DataTableModel::top : GridCells::parseNumber(name.inner)}};
}

} // namespace

namespace GridCells {

int parseNumber(const QString& text) {
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber) throw CommandFailure{u"%1 is no number"_s.arg(text)};
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
    if (place.size() != 2) throw CommandFailure{u"%1 is no cell"_s.arg(name)};
    const Row row = parseRow(place[0]);
    return Cells(parts.grid, row.table).text(row.row, parseNumber(place[1]));
}

QStringList rows(const QString& tableName) {
    const Cells cells = look(tableName);
    QStringList lines;
    for (int row = 0; row < cells.rowCount(); ++row) lines.append(cells.line(row));
    return lines;
}

int count(const QString& tableName) { return look(tableName).rowCount(); }

QPoint placeOf(DataTable* grid, const QString& name, Row row, int column) {
    const QRect place = grid->revealCell(row.table, row.row, column);
    if (place.isEmpty()) throw CommandFailure{u"%1 has no such place to press on"_s.arg(name)};
    return place.center();
}

} // namespace GridCells
