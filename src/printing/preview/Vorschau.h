#pragma once

#include "ComboBox.h"
#include "Layout.h"
#include "ReportPageView.h"
#include "Screen.h"
#include "TextBox.h"

#include <QTimer>

class Report;
class ReportDocument;
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

    Heading* const Ueberschrift = new Heading(u"Vorschau", this);
    Toolbar* const Toolbar1 = new Toolbar(this);
    ReportPageView* const pageView = new ReportPageView(this);
    // In the toolbar, where each is made after the keys before it.
    TextBox* txtSeite;
    QLabel* lblSeiten;
    ComboBox* cboZoom;
    /// The folder of a saved PDF, shown for a while.
    QLabel* const lblAblage = Layout::label(u"lblAblage", {}, this);

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
