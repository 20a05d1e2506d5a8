#include "ui/elements/Symbol.h"

#include <QIconEngine>
#include <QPixmapCache>
#include <QSvgRenderer>

namespace ardeo
{

namespace
{

QPixmap tintedSymbol(const QString& name, const QColor& colour, QSize pixels)
{
    const QString key = QStringLiteral("symbol %1 %2 %3 %4")
                            .arg(name)
                            .arg(colour.rgba())
                            .arg(pixels.width())
                            .arg(pixels.height());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap))
        return pixmap;
    pixmap = QPixmap(pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    // At this size the drawings' main lines would fall between two pixels; half a pixel aside they are sharp.
    const double shift = pixels.width() == 16 ? -0.5 : 0;
    QSvgRenderer(QStringLiteral(":/symbols/%1.svg").arg(name))
        .render(&painter, QRectF(QPointF(shift, shift), pixels));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), colour);
    painter.end();
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

class SymbolEngine final : public QIconEngine
{
public:
    SymbolEngine(QString name, const QColor& colour) : m_name(std::move(name)), m_colour(colour) {}
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        QColor colour = m_colour;
        if (mode == QIcon::Disabled)
            colour.setAlphaF(colour.alphaF() * 0.4F);
        drawSymbol(*painter, rect, m_name, colour);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new SymbolEngine(*this); }

private:
    QString m_name;
    QColor m_colour;
};

} // namespace

void drawSymbol(QPainter& painter, const QRectF& rect, const QString& name, const QColor& colour)
{
    const double scale = painter.device()->devicePixelRatioF();
    const QPixmap pixmap = tintedSymbol(name, colour, (rect.size() * scale).toSize());
    // On whole device pixels, or the fine lines would blur.
    const QPointF corner((rect.topLeft() * scale).toPoint());
    painter.drawPixmap(QRectF(corner / scale, QSizeF(pixmap.size()) / scale), pixmap, pixmap.rect());
}

QIcon symbolIcon(const QString& name, const QColor& colour)
{
    return QIcon(new SymbolEngine(name, colour));
}

QIcon applicationIcon()
{
    return QIcon(QStringLiteral(":/icons/org.ardeo.IPConfig.svg"));
}

} // namespace ardeo
