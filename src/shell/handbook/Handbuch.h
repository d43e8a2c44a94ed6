#pragma once

#include "HandbuchSeite.h"
#include "Layout.h"
#include "Screen.h"
#include "TextBox.h"

#include <QTextDocument>

class QUrl;
class QWindow;

/// The handbook, a window of its own beside the frame. It can be read at any time: also above a modal screen
/// or a question, which would lock every other window. Ctrl+F opens a line that searches all pages.
class Handbuch : public Screen {
    Q_OBJECT

public:
    Handbuch();

    /// Opens the handbook at a page (a file in its folder) and comes to the front. Shows a message box if
    /// there is no such page.
    void zeige(const QString& file);

    // Only hidden: a message box or a modal screen may be above it.
    void Form_QueryUnload() override { Hide(); }
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    Toolbar* const Toolbar1 = buildToolbar();
    HandbuchSeite* const Seite = new HandbuchSeite(this);
    QWidget* const Suchzeile = new QWidget(this);
    TextBox* const txtSuch = new TextBox(u"txtSuch", Suchzeile);
    QLabel* const lblFund = Layout::label(u"lblFund", {}, Suchzeile);

protected:
    bool event(QEvent* event) override;

private:
    Toolbar* buildToolbar();
    void buildSuchzeile();
    void blaettere(const QUrl& page);
    void oeffneSuche();
    void schliesseSuche();
    void suche(QTextDocument::FindFlags richtung);
    /// The next page in that direction that has the text, the page on show as the last. Empty if none has it.
    QUrl seiteMit(const QString& text, QTextDocument::FindFlags richtung) const;
    void zeigeTitel();
    void folgeModal();
};
