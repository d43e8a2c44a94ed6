#pragma once

#include "Screen.h"

#include <QTimer>
#include <memory>

class ComboBox;
class Heading;
class QLabel;
class Report;
class ReportDocument;
class ReportPageView;
class TextBox;
class Toolbar;
struct PrintTarget;

/// The preview of a report, a screen on the stage. A second report replaces the first. Closing unloads the
/// preview and brings the screen below to the front.
class Vorschau : public Screen {
    Q_OBJECT

public:
    Vorschau();

    void Form_QueryUnload() override;
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    /// Shows the first page of a document and comes to the front; not modal. Keeps `report`, of which the
    /// document was made, in use until the preview is closed or shows another document.
    void zeige(std::shared_ptr<const ReportDocument> document, std::shared_ptr<const Report> report = {});
    /// The document shown; null before the first zeige().
    const std::shared_ptr<const ReportDocument>& document() const { return m_document; }

    Heading* Ueberschrift;
    Toolbar* Toolbar1;
    TextBox* txtSeite;
    QLabel* lblSeiten;
    ComboBox* cboZoom;
    ReportPageView* pageView;
    QLabel* lblAblage; ///< the folder of a saved PDF, shown for a while

private:
    void buildToolbar();
    void buildPageBox();
    void buildZoomBox();
    void buildNotice();
    void txtSeite_Enter();
    void showPageNumber();
    void cboZoom_Click();
    void zoom(int step);
    void drucke();
    void speicherPdf();
    bool gibAus(const ReportDocument& document, const PrintTarget& target, const QString& failure);
    void showWhereItLies(const QString& file);

    std::shared_ptr<const ReportDocument> m_document;
    std::shared_ptr<const Report> m_report;
    QTimer m_noticeEnd;
};
