#include "Handbuch.h"

#include "Face.h"
#include "HandbuchSeite.h"
#include "MsgBox.h"
#include "TextBox.h"
#include "Toolbar.h"

#include <QBoxLayout>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QToolButton>
#include <QWindow>

namespace {

QString whatIsMissing(const QFileInfo& page) {
    if (page.dir().exists()) return u"Die Seite '%1' fehlt im Handbuch."_qs.arg(page.completeBaseName());
    return u"Das Handbuch wurde nicht gefunden.\r\n\r\n"_qs +
           u"Es gehört in den Ordner 'Handbuch', neben das Programm."_qs;
}

/// The words of a page without its marks.
bool kommtVor(const QString& text, const QString& file) {
    QFile page(file);
    if (!page.open(QIODevice::ReadOnly)) return false;
    QTextDocument words;
    words.setHtml(QString::fromUtf8(page.readAll()));
    return !words.find(text).isNull();
}

} // namespace

Handbuch::Handbuch()
    : Screen(u"Handbuch"_qs, u"Handbuch"_qs)
    , Toolbar1(new Toolbar(this))
    , Seite(new HandbuchSeite(this))
    , Suchzeile(new QWidget(this))
    , txtSuch(new TextBox(u"txtSuch"_qs, Suchzeile))
    , lblFund(Face::label(u"lblFund"_qs, {}, Suchzeile)) {
    standAlone();
    standForReading();
    buildToolbar();
    buildSuchzeile();
    Seite->setObjectName(u"Seite"_qs);
    Seite->setMinimumSize(420, 300);
    Seite->setAccessibleName(u"Seite des Handbuchs"_qs);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(Toolbar1);
    whole->addWidget(Seite, 1);
    whole->addWidget(Suchzeile);
    resize(QSize(860, 720).boundedTo(QWidget::screen()->availableSize() * 9 / 10));
    on(Seite, &HandbuchSeite::seiteGewuenscht, [this](const QUrl& page) { blaettere(page); });
    on(Seite, &QTextBrowser::sourceChanged, [this](const QUrl&) { zeigeTitel(); });
    on(Seite, &QTextBrowser::historyChanged, [this] { zeigeTitel(); });
}

void Handbuch::buildToolbar() {
    Toolbar1->addKey(u"tbZurueck"_qs, u"&Zurück"_qs, u"Zur vorigen Seite [ Alt+Links ]"_qs,
                     u"seite-zurueck"_qs, [this] { Seite->backward(); });
    Toolbar1->addKey(u"tbVor"_qs, u"&Vor"_qs, u"Wieder vor [ Alt+Rechts ]"_qs, u"seite-weiter"_qs,
                     [this] { Seite->forward(); });
    Toolbar1->addKeys({{u"tbInhalt"_qs, u"&Inhalt"_qs, u"Alle Seiten des Handbuchs"_qs, u"liste"_qs,
                        [this] { blaettere(Seite->source().resolved(QUrl(u"index.html"_qs))); }},
                       {u"tbSuch"_qs, u"S&uchen"_qs, u"Ein Wort in allen Seiten suchen [ Strg+F ]"_qs,
                        u"suchen"_qs, [this] { oeffneSuche(); }},
                       {u"tbSchliessen"_qs, u"&Schließen"_qs, u"Handbuch schließen [ Esc ]"_qs,
                        u"schliessen"_qs, [this] { Hide(); }}});
}

void Handbuch::buildSuchzeile() {
    auto* line = new QHBoxLayout(Suchzeile);
    line->setContentsMargins(Face::gap, Face::gap, Face::gap, Face::gap);
    line->setSpacing(Face::gap);
    txtSuch->setPlaceholderText(u"Wort, dann Eingabetaste"_qs);
    txtSuch->setAccessibleName(u"Suchen im Handbuch"_qs);
    txtSuch->setMaximumWidth(320);
    line->addWidget(txtSuch, 1);
    line->addWidget(lblFund, 1);
    Suchzeile->hide();
}

bool Handbuch::Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
    if (key == Qt::Key_Escape) {
        if (Suchzeile->isVisible())
            schliesseSuche();
        else
            Hide();
        return true;
    }
    if (key == Qt::Key_F && modifiers == Qt::ControlModifier) {
        oeffneSuche();
        return true;
    }
    if ((key != Qt::Key_Return && key != Qt::Key_Enter) || !txtSuch->hasFocus()) return false;
    suche(modifiers.testFlag(Qt::ShiftModifier) ? QTextDocument::FindBackward : QTextDocument::FindFlag());
    return true;
}

void Handbuch::oeffneSuche() {
    Suchzeile->show();
    txtSuch->setFocus(Qt::ShortcutFocusReason);
    txtSuch->selectAll();
}

void Handbuch::schliesseSuche() {
    Suchzeile->hide();
    lblFund->clear();
    Seite->setFocus(Qt::OtherFocusReason);
}

void Handbuch::suche(QTextDocument::FindFlags richtung) {
    const QString text = txtSuch->text().simplified();
    lblFund->clear();
    if (text.isEmpty() || Seite->find(text, richtung)) return;
    const QUrl page = seiteMit(text, richtung);
    if (page.isEmpty()) return lblFund->setText(u"Auf keiner Seite gefunden"_qs);
    if (page != Seite->source().adjusted(QUrl::RemoveFragment)) Seite->setSource(page);
    const bool back = richtung.testFlag(QTextDocument::FindBackward);
    Seite->moveCursor(back ? QTextCursor::End : QTextCursor::Start);
    Seite->find(text, richtung);
}

QUrl Handbuch::seiteMit(const QString& text, QTextDocument::FindFlags richtung) const {
    const QFileInfo here(Seite->source().toLocalFile());
    const QStringList pages = here.dir().entryList({u"*.html"_qs}, QDir::Files, QDir::Name);
    const qsizetype count = pages.size();
    const qsizetype step = richtung.testFlag(QTextDocument::FindBackward) ? count - 1 : 1;
    qsizetype at = pages.indexOf(here.fileName());
    for (qsizetype tried = 0; tried < count; ++tried) {
        at = (at + step) % count;
        const QString file = here.dir().filePath(pages.at(at));
        if (kommtVor(text, file)) return QUrl::fromLocalFile(file);
    }
    return {};
}

void Handbuch::zeige(const QString& file) {
    const QFileInfo page(file);
    if (!page.isFile()) {
        MsgBox(whatIsMissing(page), vbInformation);
        return;
    }
    const bool closed = !isVisible();
    winId(); // makes the native window, so that folgeModal() can put it above another one before it shows
    folgeModal();
    Seite->setSource(QUrl::fromLocalFile(page.absoluteFilePath()));
    if (closed) Seite->clearHistory();
    Show();
    Seite->setFocus(Qt::OtherFocusReason);
}

void Handbuch::blaettere(const QUrl& page) {
    const QFileInfo file(page.toLocalFile());
    if (file.isFile())
        Seite->setSource(page);
    else
        MsgBox(whatIsMissing(file), vbInformation);
}

void Handbuch::zeigeTitel() {
    setWindowTitle(u"Handbuch - %1"_qs.arg(Seite->documentTitle()));
    Toolbar1->setKeyEnabled(u"tbZurueck"_qs, Seite->isBackwardAvailable());
    Toolbar1->setKeyEnabled(u"tbVor"_qs, Seite->isForwardAvailable());
}

bool Handbuch::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) folgeModal();
    return Screen::event(event);
}

// A modal window locks all windows except its own children, so the handbook becomes one of them.
void Handbuch::stelleUeber(QWindow* modal) {
    if (modal == windowHandle()->transientParent()) return;
    windowHandle()->setTransientParent(modal);
    constexpr int once = Qt::QueuedConnection | Qt::UniqueConnection;
    if (modal)
        connect(modal, &QWindow::visibleChanged, this, &Handbuch::folgeModal,
                static_cast<Qt::ConnectionType>(once));
}

// When a modal window closes, an earlier one may still be open.
void Handbuch::folgeModal() { stelleUeber(QGuiApplication::modalWindow()); }
