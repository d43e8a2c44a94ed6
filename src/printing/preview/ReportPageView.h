#pragma once

#include "ReportPainter.h"

#include <QAbstractScrollArea>
#include <memory>

/// Shows one page of a report as a sheet on a table. Paints straight from the report, in the resolution of
/// the display, and only the visible part.
class ReportPageView : public QAbstractScrollArea {
    Q_OBJECT

public:
    /// Negative, so that no value is a percentage.
    enum Fit { PageWidth = -1, WholePage = -2 };

    explicit ReportPageView(QWidget* parent = nullptr);

    /// Shows the first page of a document.
    void setDocument(std::shared_ptr<const ReportDocument> document);
    void setPage(int page); ///< from 0; beyond the ends the nearest one
    int page() const { return m_page; }
    /// Does what a key means here: PageDown and PageUp scroll by the height of the view, and turn the page at
    /// its end, Home and End show the first and last page, + and - change the size. False for other keys.
    bool obey(int key);
    /// Sets per cent of the sheet's true size, or a Fit.
    void setZoom(int zoom);
    /// Per cent of the sheet's true size at present, also with a Fit.
    double shownPercent() const;

Q_SIGNALS:
    void pageChanged();
    void zoomStepWanted(int step); ///< 1 for larger, -1 for smaller

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
    void moveOn(int direction); ///< down with 1, up with -1
    bool isAtEnd(int direction) const;
    void turnPage(int direction);
    bool turnByWheel(int angle);

    std::shared_ptr<const ReportDocument> m_document;
    std::unique_ptr<ReportPainter> m_painter;
    int m_page = 0;
    int m_zoom = PageWidth;
    int m_wheel = 0; ///< turn of the wheel at the end of the page so far, in eighths of a degree
};
