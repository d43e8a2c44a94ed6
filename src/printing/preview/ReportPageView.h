#pragma once

#include "ReportPainter.h"

#include <QAbstractScrollArea>
#include <memory>

/// One page of a report as a sheet on a table. It paints from the report itself, in the very resolution of
/// the screen, and only what is to be seen.
class ReportPageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// The numbers are not those of any percentage.
    enum Fit { PageWidth = -1, WholePage = -2 };

    explicit ReportPageView(QWidget* parent = nullptr);

    /// Begins at its first page.
    void setDocument(std::shared_ptr<const ReportDocument> document);
    void setPage(int page); ///< from 0; beyond the ends the nearest one
    int page() const { return m_page; }
    /// Down with 1, up with -1: by what is to be seen of the page, and at its end to the next one, which is
    /// entered from the same side.
    void moveOn(int direction);
    /// Per cent of the sheet's true size, or a Fit.
    void setZoom(int zoom);
    /// Per cent in which the sheet is shown now.
    double shownPercent() const;

Q_SIGNALS:
    void pageChanged(int page);
    void zoomStepWanted(int step); ///< 1 is nearer, -1 is further away

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    QSizeF sheetSize() const;
    QPointF sheetCorner() const;
    double pixelsPerTenth() const;
    double trueScale() const;
    void renewScrollBars();
    bool isAtEnd(int direction) const;
    void turnPage(int direction);
    bool turnByWheel(int angle);

    std::shared_ptr<const ReportDocument> m_document;
    std::unique_ptr<ReportPainter> m_painter;
    int m_page = 0;
    int m_zoom = PageWidth;
    int m_wheel = 0; ///< turned against the end of the page so far, in eighths of a degree
};
