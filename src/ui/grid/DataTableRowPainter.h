#pragma once

#include "DataTableLook.h"

#include <QModelIndex>
#include <QRect>

class DataTableModel;
class QHeaderView;
class QPainter;
struct SelectionStyle;

/// The present state of a row in the view.
struct DataTableRowState {
    QRect rect;
    bool selected = false;
    bool marked = false;
    bool current = false;
    bool expanded = false;
    bool focused = false; ///< the grid has the focus
};

/// Paints one row of a grid: the row header, then either the cells or, for a category, its caption over the
/// whole width.
class DataTableRowPainter {
public:
    DataTableRowPainter(QPainter& painter, const DataTableModel& model, const QHeaderView& header);

    void paint(const QModelIndex& row, const DataTableRowState& state, const SelectionStyle& style,
               const QPalette& palette);

private:
    struct Colours {
        QColor back;
        QColor text;
        QColor rule;
    };

    Colours plainColours(const QModelIndex& row) const;
    Colours colours(const QModelIndex& row, const DataTableRowState& state, const SelectionStyle& style,
                    const QPalette& palette) const;
    void paintCells(const QModelIndex& row, const QRect& rect);
    void paintCaption(const QModelIndex& row, const QRect& rect);
    void paintGutter(const QModelIndex& row, const DataTableRowState& state);

    QPainter& m_painter;
    const DataTableModel& m_model;
    const QHeaderView& m_header;
    DataTableLook m_look;
};
