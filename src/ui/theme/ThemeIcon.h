#pragma once

#include <QIconEngine>

/// Draws one of the program's icons, at exactly the requested size and resolution. Its colours follow the
/// theme, also when the theme changes while a window is open.
class ThemeIcon : public QIconEngine {
public:
    explicit ThemeIcon(const QString& name);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override;
    QIconEngine* clone() const override { return new ThemeIcon(*this); }
    bool isNull() override { return m_picture.isEmpty(); }
    QString iconName() override { return m_name; }

private:
    QImage drawn(const QSize& size) const;

    QString m_name;
    QByteArray m_picture;
};
