#pragma once

#include <QHeaderView>

class DataTableModel;

/// The heads of a grid's columns, in the theme's blue. The corner above the row headers does not scroll with
/// the columns, nor do the row headers.
class DataTableHeader : public QHeaderView {
    Q_OBJECT

public:
    DataTableHeader(const DataTableModel& model, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    const DataTableModel& m_model;
};
