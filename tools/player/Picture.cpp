#include "Picture.h"

#include "CommandFailure.h"
#include "Screens.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QRect placeOf(const QWidget* window) { return {window->mapToGlobal(QPoint(0, 0)), window->size()}; }

int layerOf(const QWidget* window) {
    if (window->windowType() == Qt::Popup) return 3;
    if (window == QApplication::activeModalWidget()) return 2;
    return window->isModal() || window->parentWidget() ? 1 : 0;
}

QWidgetList windowsFromBack() {
    QWidgetList windows;
    for (Screen* screen : Screens::all()) {
        if (screen->isWindow() && screen->isVisible()) windows.append(screen);
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const bool seen = window->isVisible() && window->windowType() != Qt::ToolTip;
        if (seen && !windows.contains(window)) windows.append(window);
    }
    std::stable_sort(windows.begin(), windows.end(),
                     [](const QWidget* a, const QWidget* b) { return layerOf(a) < layerOf(b); });
    return windows;
}

/// Draws a border round a window above another one, as a window manager would.
void paintWindow(QPainter& painter, QWidget* window, QPoint origin) {
    const QRect place = placeOf(window).translated(-origin);
    painter.drawPixmap(place.topLeft(), window->grab());
    painter.setPen(QColor(96, 96, 96));
    if (layerOf(window) > 0) painter.drawRect(place.adjusted(0, 0, -1, -1));
}

} // namespace

void savePicture(const QString& path) {
    const QWidgetList windows = windowsFromBack();
    if (windows.isEmpty()) throw CommandFailure{u"there is no window to take a picture of"_s};
    QRect whole;
    for (const QWidget* window : windows) whole |= placeOf(window);
    const qreal scale = windows.first()->devicePixelRatio();
    QPixmap picture(whole.size() * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::gray);
    QPainter painter(&picture);
    for (QWidget* window : windows) paintWindow(painter, window, whole.topLeft());
    painter.end();
    QDir().mkpath(QFileInfo(path).path());
    if (!picture.save(path, "PNG")) throw CommandFailure{u"%1 can't be written"_s.arg(path)};
}
