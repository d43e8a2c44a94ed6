#include "DataTableRowPainter.h"

#include "DataTable.h"
#include "DataTableModel.h"

#include <QHeaderView>
#include <QPainter>

DataTableRowPainter::DataTableRowPainter(QPainter& painter, const DataTableModel& model,
                                         const QHeaderView& header)
    : m_painter(painter)
    , m_model(model)
    , m_header(header)
    , m_look(header.palette()) {}

void DataTableRowPainter::paint(const QModelIndex& row, const DataTableRowState& state,
                                const SelectionStyle& style, const QPalette& palette) {
    m_painter.save();
    const Colours face = colours(row, state, style, palette);
    m_painter.fillRect(state.rect, face.back);
    m_painter.fillRect(QRect(state.rect.left(), state.rect.bottom(), state.rect.width(), 1), face.rule);
    m_painter.setPen(face.text);
    if (m_model.isCategory(row)) {
        paintCaption(row, state.rect);
    } else {
        paintCells(row, state.rect);
    }
    paintGutter(row, state);
    if (state.current && state.focused) {
        DataTableShapes::frame(m_painter, state.rect.adjusted(DataTableLook::gutterWidth, 0, 0, 0),
                               m_look.focus);
    }
    m_painter.restore();
}

DataTableRowPainter::Colours DataTableRowPainter::plainColours(const QModelIndex& row) const {
    if (m_model.isCategory(row)) return {m_look.band, m_look.bandText, m_look.gutterEdge};
    if (m_model.isTwoLevel()) return {m_model.childColour(row), m_look.childText, m_look.childRule};
    return {row.row() % 2 ? m_look.odd : m_look.even, m_look.text, m_look.rule};
}

DataTableRowPainter::Colours DataTableRowPainter::colours(const QModelIndex& row,
                                                          const DataTableRowState& state,
                                                          const SelectionStyle& style,
                                                          const QPalette& palette) const {
    Colours face = plainColours(row);
    if (!state.selected) {
        if (state.marked) face.back = m_look.marked(face.back);
        return face;
    }
    const auto group = state.focused ? QPalette::Active : QPalette::Inactive;
    if (style.back.isValid()) {
        face.back = style.back;
        face.text = style.fore.isValid() ? style.fore : face.text;
    } else {
        face.back = palette.color(group, QPalette::Highlight);
        face.text = palette.color(group, QPalette::HighlightedText);
    }
    return face;
}

void DataTableRowPainter::paintCells(const QModelIndex& row, const QRect& rect) {
    const auto& columns = m_model.shownColumns();
    for (int column = 0; column < columns.size(); ++column) {
        if (m_header.isSectionHidden(column)) continue;
        const QRect cell(m_header.sectionViewportPosition(column), rect.top(), m_header.sectionSize(column),
                         rect.height() - 1);
        if (cell.right() < rect.left() || cell.left() > rect.right()) continue;
        if (columns[column].tick) {
            if (m_model.value(m_model.tableOf(row), row.row(), column) == Value(true))
                DataTableShapes::tick(m_painter, cell, m_painter.pen().color());
            continue;
        }
        const QString text = m_model.text(m_model.tableOf(row), row.row(), column);
        if (columns[column].picture) {
            DataTableShapes::picture(m_painter, cell, text);
        } else {
            const auto side = columns[column].numeric ? Qt::AlignRight : Qt::AlignLeft;
            DataTableShapes::text(m_painter, cell, side | Qt::AlignVCenter, text);
        }
    }
}

void DataTableRowPainter::paintCaption(const QModelIndex& row, const QRect& rect) {
    QFont bold = m_painter.font();
    bold.setBold(true);
    m_painter.setFont(bold);
    DataTableShapes::text(m_painter, rect.adjusted(DataTableLook::gutterWidth, 0, 0, -1),
                          Qt::AlignLeft | Qt::AlignVCenter,
                          m_model.text(DataTableModel::top, row.row(), m_model.captionColumn()));
}

void DataTableRowPainter::paintGutter(const QModelIndex& row, const DataTableRowState& state) {
    // At the viewport's edge, not at the section's place: the row header does not scroll with the columns.
    const QRect gutter(0, state.rect.top(), DataTableLook::gutterWidth, state.rect.height());
    m_painter.fillRect(gutter, m_look.gutter);
    m_painter.fillRect(QRect(gutter.right(), gutter.top(), 1, gutter.height()), m_look.gutterEdge);
    m_painter.fillRect(QRect(gutter.left(), gutter.bottom(), gutter.width(), 1), m_look.gutterEdge);
    if (m_model.isCategory(row)) {
        // Paler for a category without a child table, which can be expanded all the same.
        QColor mark = m_look.mark;
        if (!m_model.hasChild(row.row())) mark.setAlphaF(0.4F);
        DataTableShapes::expandMark(m_painter, gutter, state.expanded, mark);
    } else if (state.current) {
        DataTableShapes::currentMark(m_painter, gutter, m_look.mark);
    }
}
