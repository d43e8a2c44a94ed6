#pragma once

#include "Screen.h"

class HandbuchSeite;
class QUrl;
class QWindow;
class Toolbar;

/// The handbook, a window of its own beside the frame. It can be read at any time: also above a modal screen
/// or a question, which would lock every other window.
class Handbuch : public Screen {
    Q_OBJECT

public:
    Handbuch();

    /// Opens it at a page (a file in its folder) and comes to the front; a box tells if there is none.
    void zeige(const QString& file);

    // Only hidden: a box or a modal screen may have come up above it.
    void Form_QueryUnload() override { Hide(); }
    bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) override;

    Toolbar* Toolbar1;
    HandbuchSeite* Seite;

protected:
    bool event(QEvent* event) override;

private:
    void buildToolbar();
    void Toolbar1_ButtonClick(const QString& key);
    void blaettere(const QUrl& page);
    void zeigeTitel();
    void stelleUeber(QWindow* modal);
    void folgeModal();
};
