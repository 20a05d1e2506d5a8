#pragma once

#include <QProxyStyle>

namespace ardeo
{

/// The style of the platform-independent controls, and the user's wishes for less motion and for the size of
/// text.
class ArdeoStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    ArdeoStyle();
    void setReducedMotion(bool reduced);
    /// How many times as large as usual text is. All that there is grows or shrinks along.
    void setTextScale(double scale);
    double textScale() const { return m_textScale; }
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

Q_SIGNALS:
    void textScaleChanged();

private:
    bool m_reducedMotion = false;
    double m_textScale = 1;
};

} // namespace ardeo
