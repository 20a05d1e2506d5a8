#pragma once

#include "ui/elements/ColorScheme.h"

#include <QPainter>
#include <QPainterPathStroker>

#include <array>
#include <cmath>
#include <vector>

namespace ardeo
{

/// One channel of a layer, and where in the canvas it lies.
struct Channel {
    QRect bounds;
    std::vector<float> samples;
};

/// Blurs the rows of a channel and leaves its columns as rows, so that doing it twice blurs both ways.
inline Channel blurredAndTurned(const Channel& in, const std::vector<float>& kernel)
{
    const int width = in.bounds.width();
    const int height = in.bounds.height();
    const int reach = static_cast<int>(kernel.size()) / 2;
    Channel out{{in.bounds.y(), in.bounds.x(), height, width}, std::vector<float>(in.samples.size())};
    for (int y = 0; y < height; ++y) {
        const float* const row = in.samples.data() + y * width;
        for (int x = 0; x < width; ++x) {
            float* const column = out.samples.data() + y;
            for (int to = std::max(0, x - reach); row[x] > 0 && to <= std::min(width - 1, x + reach); ++to)
                column[to * height] += row[x] * kernel[static_cast<std::size_t>(to - x + reach)];
        }
    }
    return out;
}

inline Channel blurred(const Channel& in, double deviation)
{
    const int reach = static_cast<int>(std::ceil(4.5 * deviation));
    std::vector<float> kernel;
    for (int i = -reach; i <= reach; ++i)
        kernel.push_back(
            static_cast<float>(std::exp(-i * i / (2 * deviation * deviation)) / deviation * 0.39894228));
    return blurredAndTurned(blurredAndTurned(in, kernel), kernel);
}

/// By how much a picture is off, in steps of 1/255 of the channel that differs most.
struct Differences {
    double mean = 0;
    /// The share of the pixels.
    double beyondThree = 0;
    int largest = 0;
};

/// A canvas that draws layer by layer, in floating point: red, green, blue, alpha, from 0 to 1.
class Canvas
{
public:
    Canvas(QSize pixels, double scale) : m_scale(scale)
    {
        const auto count = static_cast<std::size_t>(pixels.width() * pixels.height());
        m_channels.fill({QRect(QPoint(), pixels), std::vector<float>(count)});
    }

    void fill(const QPainterPath& path, double blur, const QColor& colour, double opacity)
    {
        // Left to itself, the painter makes an octagon of a circle as small as a dot.
        const QTransform finer = QTransform::fromScale(m_scale * 32, m_scale * 32);
        const QPolygonF shape = QTransform::fromScale(1.0 / 32, 1.0 / 32).map(path.toFillPolygon(finer));
        const int border = static_cast<int>(std::ceil(4.5 * blur * m_scale)) + 1;
        const QRect bounds = shape.boundingRect().toAlignedRect().adjusted(-border, -border, border, border);
        // The painter's antialiasing has 8 bits anyway, all that follows has more.
        QImage image(bounds.size(), QImage::Format_Alpha8);
        image.fill(0);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.translate(-bounds.topLeft());
        painter.drawPolygon(shape, Qt::WindingFill);
        painter.end();
        Channel layer{bounds, {}};
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                layer.samples.push_back(static_cast<float>(image.constScanLine(y)[x]) / 255);
        if (blur > 0)
            layer = blurred(layer, blur * m_scale);
        const std::array<float, 4> source{colour.redF(), colour.greenF(), colour.blueF(), 1};
        const QRect common = bounds & m_channels[0].bounds;
        for (std::size_t channel = 0; channel < 4; ++channel) {
            for (int y = common.top(); y <= common.bottom(); ++y) {
                float* const out = m_channels[channel].samples.data() + y * m_channels[0].bounds.width();
                const float* const in = layer.samples.data() + (y - bounds.top()) * bounds.width();
                for (int x = common.left(); x <= common.right(); ++x)
                    out[x] +=
                        in[x - bounds.left()] * static_cast<float>(opacity) * (source[channel] - out[x]);
            }
        }
    }

    void blur(double deviation)
    {
        for (Channel& channel : m_channels)
            channel = blurred(channel, deviation * m_scale);
    }

    Differences differencesFrom(const QImage& image, QColor ground) const
    {
        const std::array grounds{ground.redF() * 255, ground.greenF() * 255, ground.blueF() * 255};
        Differences found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
                const std::array channels{qRed(pixel), qGreen(pixel), qBlue(pixel)};
                const auto index = static_cast<std::size_t>(y * image.width() + x);
                const auto through = 1 - m_channels[3].samples[index];
                int difference = 0;
                for (std::size_t i = 0; i < channels.size(); ++i) {
                    const auto meant = m_channels[i].samples[index] * 255 + through * grounds[i];
                    difference = std::max(difference, std::abs(channels[i] - qRound(meant)));
                }
                found.largest = std::max(found.largest, difference);
                found.mean += difference;
                found.beyondThree += difference > 3;
            }
        }
        const double pixels = double(image.width()) * image.height();
        return {found.mean / pixels, found.beyondThree / pixels, found.largest};
    }

private:
    double m_scale;
    std::array<Channel, 4> m_channels;
};

constexpr std::array<std::array<double, 4>, 35> literalNodes{{
    {0.11, 0.13, 0.0, 1.2}, {0.07, 0.09, 2.1, 0.7}, {0.15, 0.08, 1.0, 2.3}, {0.09, 0.12, 3.1, 0.4},
    {0.13, 0.11, 0.8, 1.9}, {0.06, 0.14, 2.5, 0.1}, {0.17, 0.07, 0.3, 2.7}, {0.10, 0.16, 1.7, 0.6},
    {0.08, 0.10, 2.9, 1.4}, {0.14, 0.06, 0.5, 3.0}, {0.12, 0.15, 1.3, 0.9}, {0.16, 0.09, 2.2, 1.6},
    {0.05, 0.13, 0.9, 2.0}, {0.11, 0.07, 3.2, 0.3}, {0.09, 0.17, 1.5, 2.4}, {0.13, 0.10, 0.2, 1.1},
    {0.07, 0.12, 2.8, 0.8}, {0.15, 0.06, 0.6, 2.6}, {0.10, 0.14, 1.8, 0.2}, {0.08, 0.11, 3.0, 1.5},
    {0.14, 0.08, 0.4, 2.1}, {0.06, 0.15, 2.3, 0.5}, {0.12, 0.09, 1.1, 2.8}, {0.16, 0.13, 0.7, 0.0},
    {0.09, 0.06, 2.6, 1.3}, {0.11, 0.16, 0.1, 2.2}, {0.13, 0.08, 1.9, 0.6}, {0.07, 0.11, 2.4, 1.7},
    {0.15, 0.14, 0.3, 0.9}, {0.08, 0.07, 3.1, 2.5}, {0.10, 0.13, 1.6, 0.4}, {0.14, 0.10, 0.8, 2.9},
    {0.06, 0.09, 2.0, 1.0}, {0.12, 0.15, 0.5, 1.8}, {0.17, 0.11, 1.2, 0.7},
}};

/// The frame as it is meant, one layer after the other.
inline Canvas literalFrame(QSizeF size, double time, ColorScheme scheme, double scale)
{
    constexpr double maxDist = 220;
    const bool dark = scheme == ColorScheme::dark;
    const QColor link = dark ? QColor::fromRgbF(0.1F, 0.4F, 0.95F) : QColor::fromRgbF(0, 0.55F, 0.75F);
    const QColor dot = dark ? QColor(Qt::white) : QColor::fromRgbF(0.1F, 0.3F, 0.6F);
    Canvas canvas((size * scale).toSize(), scale);
    QPainterPathStroker stroker;
    stroker.setCapStyle(Qt::FlatCap);
    std::vector<QPointF> positions;
    positions.reserve(literalNodes.size());
    for (const auto& [xFreq, yFreq, xPhase, yPhase] : literalNodes) {
        positions.emplace_back(size.width() * (0.5 + 0.46 * std::sin(time * 0.25 * xFreq + xPhase)),
                               size.height() * (0.5 + 0.47 * std::cos(time * 0.25 * yFreq + yPhase)));
    }
    for (std::size_t i = 0; i < positions.size(); ++i) {
        for (std::size_t j = i + 1; j < positions.size(); ++j) {
            const double distance = QLineF(positions[i], positions[j]).length();
            if (distance >= maxDist)
                continue;
            const double alpha = (1 - distance / maxDist) * 0.4;
            QPainterPath segment(positions[i]);
            segment.lineTo(positions[j]);
            stroker.setWidth(2.5);
            canvas.fill(stroker.createStroke(segment), 3, link, alpha * 0.45);
            stroker.setWidth(0.8);
            canvas.fill(stroker.createStroke(segment), 0, link, alpha);
        }
    }
    for (const QPointF& position : positions) {
        QPainterPath glow;
        glow.addEllipse(position, 4.8, 4.8);
        canvas.fill(glow, 5, link, 0.35);
        QPainterPath disc;
        disc.addEllipse(position, 1.6, 1.6);
        canvas.fill(disc, 0, dot, 0.5);
    }
    canvas.blur(2.5);
    return canvas;
}

} // namespace ardeo
