#pragma once

#include <QTextBrowser>

/// A page of the handbook. Links lead to pages on the disk and nowhere else; pictures take at most two
/// thirds of the window's width, so that the text comes first.
class HandbuchSeite : public QTextBrowser {
    Q_OBJECT

public:
    explicit HandbuchSeite(QWidget* parent = nullptr);

    QVariant loadResource(int type, const QUrl& name) override;

Q_SIGNALS:
    /// A link to a page was clicked.
    void seiteGewuenscht(const QUrl& page);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QImage fitting(const QImage& picture);

    int m_setWidth = 0; ///< width of the view when its pictures were scaled, in pixels
};
