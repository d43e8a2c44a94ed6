#include "Theme.h"

#include <QBuffer>
#include <QFile>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>

using namespace Qt::StringLiterals;

namespace {

constexpr double disabledOpacity = 0.38;

// The icons' three colours that change with the mode. Their other colours are legible in both modes.
const QByteArray lineColour = QByteArrayLiteral("#1f3f77");
const QByteArray fillColour = QByteArrayLiteral("#acc7f7");
const QByteArray paperColour = QByteArrayLiteral("#ffffff");
const QByteArray lineColourOnDark = QByteArrayLiteral("#c6d9fb");
const QByteArray fillColourOnDark = QByteArrayLiteral("#3a5c99");
const QByteArray paperColourOnDark = QByteArrayLiteral("#1c2330");

QByteArray recoloured(QByteArray picture) {
    if (Theme::mode() == Theme::Mode::Light) return picture;
    picture.replace(lineColour, lineColourOnDark);
    picture.replace(fillColour, fillColourOnDark);
    return picture.replace(paperColour, paperColourOnDark);
}

QByteArray contentsOf(const QString& name) {
    QFile file(u":/uferwart/icons/%1.svg"_s.arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Draws one of the program's icons, at exactly the requested size and resolution. Its colours follow the
/// theme, also when the theme changes while a window is open.
class ThemeIcon : public QIconEngine {
public:
    explicit ThemeIcon(const QString& name)
        : m_name(name)
        , m_picture(contentsOf(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QIconEngine* clone() const override { return new ThemeIcon(*this); }
    bool isNull() override { return m_picture.isEmpty(); }

private:
    QPixmap drawn(const QSize& size, double opacity) const;

    QString m_name;
    QByteArray m_picture;
};

// In the middle of `size`, with its proportions kept.
QPixmap ThemeIcon::drawn(const QSize& size, double opacity) const {
    QByteArray data = recoloured(m_picture);
    QBuffer buffer(&data);
    QImageReader reader(&buffer, QByteArrayLiteral("svg"));
    const QSize fitting = reader.size().scaled(size, Qt::KeepAspectRatio);
    reader.setScaledSize(fitting);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setOpacity(opacity);
    painter.drawImage((size.width() - fitting.width()) / 2, (size.height() - fitting.height()) / 2,
                      reader.read());
    painter.end();
    return QPixmap::fromImage(image);
}

QPixmap ThemeIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) {
    if (m_picture.isEmpty() || size.isEmpty()) return {};
    const QString key = u"uferwart/%1/%2x%3/%4/%5"_s.arg(m_name)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(static_cast<int>(mode))
                            .arg(static_cast<int>(Theme::mode()));
    QPixmap found;
    if (QPixmapCache::find(key, &found)) return found;
    found = drawn(size, mode == QIcon::Disabled ? disabledOpacity : 1);
    QPixmapCache::insert(key, found);
    return found;
}

// From Qt 6.8 on Qt passes the size in logical pixels, before 6.8 in device pixels.
QPixmap ThemeIcon::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) {
    constexpr bool sizeIsLogical = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);
    return pixmap(sizeIsLogical ? (QSizeF(size) * scale).toSize() : size, mode, state);
}

void ThemeIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) {
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    const QSize pixels = (QSizeF(rect.size()) * ratio).toSize();
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(rect, pixmap(pixels, mode, state));
}

} // namespace

QIcon Theme::icon(const QString& name) { return QIcon(new ThemeIcon(name)); }
