#include "Vorschau.h"

#include "Hourglass.h"
#include "MsgBox.h"
#include "PrintDialogs.h"
#include "ReportDocument.h"
#include "Screens.h"

#include <QDir>
#include <QFileInfo>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int zoomLevels[] = {50, 75, 100, 125, 150, 200};
constexpr int pageWidthEntry = static_cast<int>(std::size(zoomLevels));

} // namespace

Vorschau::Vorschau()
    : Screen(u"Vorschau"_s, u"Vorschau"_s) {
    standForReading();
    buildToolbar();
    buildNotice();
    Layout::stack(this, {Ueberschrift, Toolbar1, pageView, lblAblage}, pageView);
    on(pageView, &ReportPageView::pageChanged, [this] { showPageNumber(); });
    on(pageView, &ReportPageView::zoomStepWanted, [this](int step) { zoom(step); });
    cboZoom->setListIndex(pageWidthEntry);
}

void Vorschau::buildToolbar() {
    const auto turn = [this](const QString& key, const QString& tip, const QString& icon,
                             const Toolbar::Handler& handler) {
        const QString caption = tip.section(u" ["_s, 0, 0);
        Toolbar1->addKey({key, caption, tip, icon, handler})->setToolButtonStyle(Qt::ToolButtonIconOnly);
    };
    turn(u"tbErste"_s, u"Erste Seite [ Pos1 ]"_s, u"seite-erste"_s, [this] { pageView->setPage(0); });
    turn(u"tbZurueck"_s, u"Vorige Seite [ Bild auf ]"_s, u"seite-zurueck"_s,
         [this] { pageView->setPage(pageView->page() - 1); });
    buildPageBox();
    turn(u"tbWeiter"_s, u"Nächste Seite [ Bild ab ]"_s, u"seite-weiter"_s,
         [this] { pageView->setPage(pageView->page() + 1); });
    turn(u"tbLetzte"_s, u"Letzte Seite [ Ende ]"_s, u"seite-letzte"_s,
         [this] { pageView->setPage(m_document->pageCount() - 1); });
    Toolbar1->addSeparator();
    buildZoomBox();
    Toolbar1->addSeparator();
    Toolbar1->addKey(
        {u"tbDruck"_s, u"D&rucken"_s, u"Bericht drucken..."_s, u"drucken"_s, [this] { drucke(); }});
    Toolbar1->addKey({u"tbPdf"_s, u"&PDF"_s, u"Bericht als PDF-Datei speichern..."_s, u"pdf"_s,
                      [this] { speicherPdf(); }});
    Toolbar1->addKeys({{u"tbSchliessen"_s, u"&Schließen"_s, u"Vorschau schließen [ Esc ]"_s, u"schliessen"_s,
                        &unload<Vorschau>}});
}

void Vorschau::buildPageBox() {
    txtSeite = new TextBox(u"txtSeite", Toolbar1, 7);
    txtSeite->setAlignment(Qt::AlignRight);
    txtSeite->setFixedWidth(txtSeite->fontMetrics().horizontalAdvance(u"0000000"_s) + 16);
    txtSeite->setSelectAllOnFocus(true);
    txtSeite->setAccessibleName(u"Seite"_s);
    txtSeite->setToolTip(u"Seitenzahl, mit Enter bestätigen"_s);
    txtSeite->setKeyFilter([](int code) { return code < 32 || (code >= '0' && code <= '9') ? code : 0; });
    Toolbar1->add(txtSeite);
    lblSeiten = Layout::label(u"lblSeiten", {}, Toolbar1);
    Toolbar1->add(lblSeiten);
    on(txtSeite, &TextBox::returnPressed, [this] { txtSeite_Enter(); });
    on(txtSeite, &TextBox::LostFocus, [this] { showPageNumber(); });
}

void Vorschau::buildZoomBox() {
    cboZoom = new ComboBox(u"cboZoom", Toolbar1);
    for (const int percent : zoomLevels) cboZoom->AddItem(u"%1 %"_s.arg(percent));
    cboZoom->AddItem(u"Seitenbreite"_s);
    cboZoom->AddItem(u"ganze Seite"_s);
    cboZoom->setAccessibleName(u"Zoom"_s);
    cboZoom->setToolTip(u"Größe der Darstellung [ + ] [ - ]"_s);
    Toolbar1->add(cboZoom);
    on(cboZoom, &ComboBox::Click, [this] { cboZoom_Click(); });
}

void Vorschau::buildNotice() {
    lblAblage->setTextInteractionFlags(Qt::TextSelectableByMouse);
    lblAblage->setContentsMargins(Layout::gap, Layout::gap / 2, Layout::gap, Layout::gap / 2);
    // A long path must not make the frame wider.
    lblAblage->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    lblAblage->hide();
    m_noticeEnd.setSingleShot(true);
    connect(&m_noticeEnd, &QTimer::timeout, lblAblage, &QWidget::hide);
}

void Vorschau::Form_QueryUnload() { unload<Vorschau>(); }

// In the page box the keys that move the caret keep their meaning.
bool Vorschau::Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
    const bool zooms = key == Qt::Key_Plus || key == Qt::Key_Minus;
    if (!zooms && modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier)) return false;
    if (key == Qt::Key_Escape) {
        unload<Vorschau>();
        return true;
    }
    if (txtSeite->hasFocus() && (key == Qt::Key_Home || key == Qt::Key_End)) return false;
    return pageView->obey(key);
}

void Vorschau::zeige(std::shared_ptr<const ReportDocument> document, std::shared_ptr<const Report> report) {
    m_document = std::move(document);
    m_report = std::move(report);
    setWindowTitle(m_document->caption());
    Ueberschrift->setText(m_document->caption());
    pageView->setDocument(m_document);
    lblAblage->hide();
    Show();
    pageView->setFocus(Qt::OtherFocusReason);
}

void Vorschau::txtSeite_Enter() {
    const int wanted = txtSeite->text().toInt();
    if (wanted > 0) pageView->setPage(wanted - 1);
    showPageNumber();
    txtSeite->selectAll();
}

void Vorschau::showPageNumber() {
    const int pages = m_document->pageCount();
    const int page = pageView->page() + 1;
    txtSeite->setText(QString::number(page));
    lblSeiten->setText(u"von %1"_s.arg(pages));
    Toolbar1->setKeyEnabled(u"tbErste"_s, page > 1);
    Toolbar1->setKeyEnabled(u"tbZurueck"_s, page > 1);
    Toolbar1->setKeyEnabled(u"tbWeiter"_s, page < pages);
    Toolbar1->setKeyEnabled(u"tbLetzte"_s, page < pages);
}

void Vorschau::cboZoom_Click() {
    const int chosen = cboZoom->currentIndex();
    if (chosen < pageWidthEntry)
        pageView->setZoom(zoomLevels[chosen]);
    else
        pageView->setZoom(chosen == pageWidthEntry ? ReportPageView::PageWidth : ReportPageView::WholePage);
}

// To the next level from the present size, which with a Fit may lie between two levels.
void Vorschau::zoom(int step) {
    const double shown = pageView->shownPercent();
    int level = step > 0 ? 0 : pageWidthEntry - 1;
    while (level >= 0 && level < pageWidthEntry && (zoomLevels[level] - shown) * step < 0.5) level += step;
    if (level >= 0 && level < pageWidthEntry) cboZoom->setListIndex(level);
}

// The dialog runs an event loop, in which the preview and even the program may end. `printed` keeps the data.
void Vorschau::drucke() {
    const QPointer<Vorschau> alive(this);
    const auto printed = m_document;
    const auto target = printDialogs().choosePrintTarget(*printed, pageView->page());
    if (target && Screens::isAlive(alive))
        gibAus(*printed, *target, u"Der Bericht konnte nicht gedruckt werden !"_s);
}

void Vorschau::speicherPdf() {
    const QPointer<Vorschau> alive(this);
    const auto saved = m_document;
    const QString file = printDialogs().choosePdfFile(pdfNameFor(saved->caption()));
    if (file.isEmpty() || !Screens::isAlive(alive)) return;
    const QString shown = QDir::toNativeSeparators(file);
    if (gibAus(*saved, {file}, u"Die Datei '%1' konnte nicht geschrieben werden !"_s.arg(shown)))
        showWhereItLies(file);
}

/// Prints. False after a message box that begins with `failure`.
bool Vorschau::gibAus(const ReportDocument& document, const PrintTarget& target, const QString& failure) {
    try {
        const Hourglass hourglass(*this);
        printReport(document, target);
        return true;
    } catch (const RuntimeError& error) {
        MsgBox(failure + u"\r\n\r\n"_s + error.description, vbExclamation);
        return false;
    }
}

// The file name comes first, since the end of a long text is cut off.
void Vorschau::showWhereItLies(const QString& file) {
    constexpr int shown = 15000; // milliseconds
    const QFileInfo place(file);
    const QString folder = QDir::toNativeSeparators(place.absolutePath());
    lblAblage->setText(u"„%1“ liegt jetzt im Ordner %2"_s.arg(place.fileName(), folder));
    lblAblage->setToolTip(QDir::toNativeSeparators(place.absoluteFilePath()));
    lblAblage->show();
    m_noticeEnd.start(shown);
}
