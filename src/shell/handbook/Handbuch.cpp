#include "Handbuch.h"

#include "MsgBox.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QToolButton>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

/// False, after a message box, if there is no such page.
bool istDa(const QFileInfo& page) {
    if (page.isFile()) return true;
    if (page.dir().exists())
        MsgBox(u"Die Seite '%1' fehlt im Handbuch."_s.arg(page.completeBaseName()), vbInformation);
    else
        MsgBox(u"Das Handbuch wurde nicht gefunden.\r\n\r\n"_s
               u"Es gehört in den Ordner 'Handbuch', neben das Programm."_s,
               vbInformation);
    return false;
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
    : Screen(u"Handbuch"_s, u"Handbuch"_s) {
    standAlone();
    standForReading();
    buildSuchzeile();
    Seite->setObjectName(u"Seite"_s);
    Seite->setMinimumSize(420, 300);
    Seite->setAccessibleName(u"Seite des Handbuchs"_s);
    Layout::stack(this, {Toolbar1, Seite, Suchzeile}, Seite);
    resize(QSize(860, 720).boundedTo(QWidget::screen()->availableSize() * 9 / 10));
    on(Seite, &HandbuchSeite::seiteGewuenscht, [this](const QUrl& page) { blaettere(page); });
    on(Seite, &QTextBrowser::sourceChanged, [this](const QUrl&) { zeigeTitel(); });
    on(Seite, &QTextBrowser::historyChanged, [this] { zeigeTitel(); });
}

Toolbar* Handbuch::buildToolbar() {
    auto* made = new Toolbar(this);
    made->addKey({u"tbZurueck"_s, u"&Zurück"_s, u"Zur vorigen Seite [ Alt+Links ]"_s, u"seite-zurueck"_s,
                  [this] { Seite->backward(); }});
    made->addKey({u"tbVor"_s, u"&Vor"_s, u"Wieder vor [ Alt+Rechts ]"_s, u"seite-weiter"_s,
                  [this] { Seite->forward(); }});
    made->addKeys({{u"tbInhalt"_s, u"&Inhalt"_s, u"Alle Seiten des Handbuchs"_s, u"liste"_s,
                    [this] { blaettere(Seite->source().resolved(QUrl(u"index.html"_s))); }},
                   {u"tbSuch"_s, u"S&uchen"_s, u"Ein Wort in allen Seiten suchen [ Strg+F ]"_s, u"suchen"_s,
                    [this] { oeffneSuche(); }},
                   {u"tbSchliessen"_s, u"&Schließen"_s, u"Handbuch schließen [ Esc ]"_s, u"schliessen"_s,
                    [this] { Hide(); }}});
    return made;
}

void Handbuch::buildSuchzeile() {
    auto* line = new QHBoxLayout(Suchzeile);
    line->setContentsMargins(Layout::gap, Layout::gap, Layout::gap, Layout::gap);
    line->setSpacing(Layout::gap);
    txtSuch->setPlaceholderText(u"Wort, dann Eingabetaste"_s);
    txtSuch->setAccessibleName(u"Suchen im Handbuch"_s);
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
    if (page.isEmpty()) return lblFund->setText(u"Auf keiner Seite gefunden"_s);
    if (page != Seite->source().adjusted(QUrl::RemoveFragment)) Seite->setSource(page);
    const bool back = richtung.testFlag(QTextDocument::FindBackward);
    Seite->moveCursor(back ? QTextCursor::End : QTextCursor::Start);
    Seite->find(text, richtung);
}

QUrl Handbuch::seiteMit(const QString& text, QTextDocument::FindFlags richtung) const {
    const QFileInfo here(Seite->source().toLocalFile());
    const QStringList pages = here.dir().entryList({u"*.html"_s}, QDir::Files, QDir::Name);
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
    if (!istDa(page)) return;
    const bool closed = !isVisible();
    winId(); // makes the native window, so that folgeModal() can put it above another one before it shows
    folgeModal();
    Seite->setSource(QUrl::fromLocalFile(page.absoluteFilePath()));
    if (closed) Seite->clearHistory();
    Show();
    Seite->setFocus(Qt::OtherFocusReason);
}

void Handbuch::blaettere(const QUrl& page) {
    if (istDa(QFileInfo(page.toLocalFile()))) Seite->setSource(page);
}

void Handbuch::zeigeTitel() {
    setWindowTitle(u"Handbuch - %1"_s.arg(Seite->documentTitle()));
    Toolbar1->setKeyEnabled(u"tbZurueck"_s, Seite->isBackwardAvailable());
    Toolbar1->setKeyEnabled(u"tbVor"_s, Seite->isForwardAvailable());
}

bool Handbuch::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked) folgeModal();
    return Screen::event(event);
}

// A modal window locks all windows except its own children, so the handbook becomes one of them. When it
// closes, an earlier one may still be open.
void Handbuch::folgeModal() {
    QWindow* modal = QGuiApplication::modalWindow();
    if (modal == windowHandle()->transientParent()) return;
    windowHandle()->setTransientParent(modal);
    constexpr auto once = static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection);
    if (modal) connect(modal, &QWindow::visibleChanged, this, &Handbuch::folgeModal, once);
}
