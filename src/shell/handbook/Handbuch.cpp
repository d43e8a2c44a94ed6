#include "Handbuch.h"

#include "HandbuchSeite.h"
#include "MsgBox.h"
#include "Toolbar.h"

#include <QBoxLayout>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QToolButton>
#include <QWindow>

namespace {

QString whatIsMissing(const QFileInfo& page) {
    if (page.dir().exists()) return u"Die Seite '%1' fehlt im Handbuch."_qs.arg(page.completeBaseName());
    return u"Das Handbuch wurde nicht gefunden.\r\n\r\n"_qs +
           u"Es gehört in den Ordner 'Handbuch', neben das Programm."_qs;
}

} // namespace

Handbuch::Handbuch()
    : Screen(u"Handbuch"_qs, u"Handbuch"_qs)
    , Toolbar1(new Toolbar(this))
    , Seite(new HandbuchSeite(this)) {
    standAlone();
    buildToolbar();
    Seite->setObjectName(u"Seite"_qs);
    Seite->setMinimumSize(420, 300);
    Seite->setAccessibleName(u"Seite des Handbuchs"_qs);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->setSpacing(0);
    whole->addWidget(Toolbar1);
    whole->addWidget(Seite, 1);
    resize(QSize(860, 720).boundedTo(QWidget::screen()->availableSize() * 9 / 10));
    on(Toolbar1, &Toolbar::ButtonClick, [this](const QString& key) { Toolbar1_ButtonClick(key); });
    on(Seite, &HandbuchSeite::seiteGewuenscht, [this](const QUrl& page) { blaettere(page); });
    on(Seite, &QTextBrowser::sourceChanged, [this](const QUrl&) { zeigeTitel(); });
    on(Seite, &QTextBrowser::historyChanged, [this] { zeigeTitel(); });
}

void Handbuch::buildToolbar() {
    Toolbar1->addKey(u"tbZurueck"_qs, u"&Zurück"_qs, u"Zur vorigen Seite [ Alt+Links ]"_qs,
                     u"seite-zurueck"_qs);
    Toolbar1->addKey(u"tbVor"_qs, u"&Vor"_qs, u"Wieder vor [ Alt+Rechts ]"_qs, u"seite-weiter"_qs);
    Toolbar1->addSeparator();
    Toolbar1->addKey(u"tbInhalt"_qs, u"&Inhalt"_qs, u"Alle Seiten des Handbuchs"_qs, u"liste"_qs);
    Toolbar1->addSeparator();
    Toolbar1->addKey(u"tbSchliessen"_qs, u"&Schließen"_qs, u"Handbuch schließen [ Esc ]"_qs,
                     u"schliessen"_qs);
}

bool Handbuch::Form_KeyDown(int key, Qt::KeyboardModifiers /*modifiers*/) {
    if (key == Qt::Key_Escape) Hide();
    return key == Qt::Key_Escape;
}

void Handbuch::Toolbar1_ButtonClick(const QString& key) {
    if (key == u"tbZurueck"_qs) Seite->backward();
    if (key == u"tbVor"_qs) Seite->forward();
    if (key == u"tbInhalt"_qs) blaettere(Seite->source().resolved(QUrl(u"index.html"_qs)));
    if (key == u"tbSchliessen"_qs) Hide();
}

void Handbuch::zeige(const QString& file) {
    const QFileInfo page(file);
    if (!page.isFile()) {
        MsgBox(whatIsMissing(page), vbInformation);
        return;
    }
    const bool closed = !isVisible();
    winId(); // what it is to stand above has to be known before it is shown
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

// A modal window locks all others but those that belong to it.
void Handbuch::stelleUeber(QWindow* modal) {
    if (modal == windowHandle()->transientParent()) return;
    windowHandle()->setTransientParent(modal);
    constexpr int once = Qt::QueuedConnection | Qt::UniqueConnection;
    if (modal)
        connect(modal, &QWindow::visibleChanged, this, &Handbuch::folgeModal,
                static_cast<Qt::ConnectionType>(once));
}

// When one goes, an earlier one may still be there.
void Handbuch::folgeModal() { stelleUeber(QGuiApplication::modalWindow()); }
