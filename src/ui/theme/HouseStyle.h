#pragma once

#include <QProxyStyle>

class QStyleOptionComboBox;

/// The flat look of the program's controls: rounded fields, one accent ring for the focus, slim scroll bars.
/// Leaves everything else to the style below it.
class HouseStyle : public QProxyStyle {
public:
    HouseStyle();

    QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* answer = nullptr) const override;

private:
    static constexpr QPoint groupLabel{10, 6};

    void drawEntry(const QStyleOptionComboBox* option, QPainter* painter, const QWidget* widget) const;
    void drawGroupBox(const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const;
    void drawSpinBox(const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const;
    void drawScrollBar(const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const;
};
