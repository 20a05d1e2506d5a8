#include "ui/background/NeuralNetworkDrawing.h"

#include "ui/background/NeuralNetwork.h"

#include <QRectF>
#include <QVector3D>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

// All is blurred in the end, so strongly that nothing has an edge: a line is a Gaussian across, and along the
// difference of two distributions; a disc is a Gaussian. Their variances are those of all blurs and of the
// shape itself, without that of the linear interpolation which brings the picture to the screen. Links and
// glows have one colour, so that their optical depths add up in one plane; the dots have another.

namespace ardeo
{

namespace
{

// In points.
constexpr double lineWidth = 0.8;
constexpr double glowWidth = 2.5;
constexpr double glowBlur = 3;
constexpr double nodeGlowRadius = 4.8;
constexpr double nodeGlowBlur = 5;
constexpr double dotRadius = 1.6;
constexpr double finalBlur = 2.5;
constexpr double interpolation = networkCell * networkCell / 6.0;
constexpr double glowShare = 0.45; // of the link's own opacity
constexpr double nodeGlowOpacity = 0.35;
constexpr double dotOpacity = 0.5;
/// The standard normal density and distribution, up to where nothing is left of them.
class Normal
{
public:
    static constexpr float reach = 3;

    Normal()
    {
        for (size_t i = 0; i < count; ++i) {
            const double t = (static_cast<double>(i) + 0.5) / steps - reach;
            m_density[i] = static_cast<float>(std::exp(-t * t / 2) / std::sqrt(2 * std::numbers::pi));
            m_distribution[i] = static_cast<float>(std::erfc(-t / std::numbers::sqrt2) / 2);
        }
    }
    float density(float t) const { return m_density[index(t)]; }
    float distribution(float t) const { return m_distribution[index(t)]; }

private:
    static constexpr int steps = 64;
    static constexpr int count = static_cast<int>(2 * reach) * steps;
    static size_t index(float t) { return size_t(int(std::clamp((t + reach) * steps, 0.0F, count - 1.0F))); }

    std::array<float, count> m_density{};
    std::array<float, count> m_distribution{};
};

const Normal normal;

/// Optical depths at the middle of each cell.
struct Plane {
    QSize size;
    std::vector<float> depths =
        std::vector<float>(static_cast<size_t>(size.width()) * static_cast<size_t>(size.height()));
    float* row(int y) { return depths.data() + static_cast<ptrdiff_t>(y) * size.width(); }
};

/// The first of the cells whose middles lie between two coordinates, and the one behind the last.
std::pair<int, int> cellsBetween(double from, double to, int count)
{
    const auto cell = [count](double place) {
        return static_cast<int>(std::clamp(place / networkCell + 0.5, 0.0, static_cast<double>(count)));
    };
    return {cell(from), cell(to)};
}

constexpr float middle(int cell)
{
    return (static_cast<float>(cell) + 0.5F) * networkCell;
}

/// A straight line with flat ends, its blurs summed up in one variance.
void addLine(Plane& plane, const NodeLink& link, double opacity, double width, double variance)
{
    const double deviation = std::sqrt(variance + width * width / 12 - interpolation);
    const double reach = Normal::reach * deviation;
    const QPointF way = link.to - link.from;
    const double length = std::hypot(way.x(), way.y());
    if (length == 0)
        return;
    // All is in deviations from here: v along the line from its beginning, u across from its middle.
    const QPointF unit = way / length / deviation;
    const auto depth = static_cast<float>(opacity * width / deviation);
    const auto end = static_cast<float>(length / deviation);
    const auto alongStep = static_cast<float>(unit.x() * networkCell);
    const auto acrossStep = static_cast<float>(unit.y() * networkCell);
    const auto [top, bottom] =
        cellsBetween(std::min(link.from.y(), link.to.y()) - reach,
                     std::max(link.from.y(), link.to.y()) + reach, plane.size.height());
    for (int y = top; y < bottom; ++y) {
        const double dy = middle(y) - link.from.y();
        // Where this row is near enough to the line: within its reach across, and not far behind its ends.
        double left = std::min(link.from.x(), link.to.x()) - reach;
        double right = std::max(link.from.x(), link.to.x()) + reach;
        if (unit.y() != 0) {
            const double centre = link.from.x() + dy * unit.x() / unit.y();
            const double half = Normal::reach / std::abs(unit.y());
            left = std::max(left, centre - half);
            right = std::min(right, centre + half);
        }
        const auto [begin, past] = cellsBetween(left, right, plane.size.width());
        const double dx = middle(begin) - link.from.x();
        const auto v = static_cast<float>(dx * unit.x() + dy * unit.y());
        const auto u = static_cast<float>(dx * unit.y() - dy * unit.x());
        float* const first = plane.row(y) + begin;
        for (int i = 0; i < past - begin; ++i) {
            const float here = v + static_cast<float>(i) * alongStep;
            const bool isNearEnd = here < Normal::reach || here > end - Normal::reach;
            const float along = isNearEnd ? normal.distribution(here) - normal.distribution(here - end) : 1;
            first[i] += depth * along * normal.density(u + static_cast<float>(i) * acrossStep);
        }
    }
}

void addDisc(Plane& plane, QPointF centre, double radius, double opacity, double variance)
{
    const double deviation = std::sqrt(variance + radius * radius / 4 - interpolation);
    const double reach = Normal::reach * deviation;
    const double depth = opacity * std::numbers::pi * std::pow(radius / deviation, 2);
    const auto [top, bottom] = cellsBetween(centre.y() - reach, centre.y() + reach, plane.size.height());
    const auto [begin, past] = cellsBetween(centre.x() - reach, centre.x() + reach, plane.size.width());
    const auto density = [deviation](double distance) {
        return normal.density(static_cast<float>(distance / deviation));
    };
    for (int y = top; y < bottom; ++y) {
        const float here = static_cast<float>(depth) * density(middle(y) - centre.y());
        for (int x = begin; x < past; ++x)
            plane.row(y)[x] += here * density(middle(x) - centre.x());
    }
}

QVector3D channels(QColor colour)
{
    return {colour.redF() * 255, colour.greenF() * 255, colour.blueF() * 255};
}

} // namespace

QImage drawNetwork(QSizeF size, double time, double maxDist, double speed, ColorScheme scheme, QColor ground)
{
    constexpr double blur = finalBlur * finalBlur;
    const QSize cells = QRectF(QPointF(), size / networkCell).toAlignedRect().size();
    Plane links{cells};
    Plane dots{cells};
    const std::vector<QPointF> positions = nodePositions(size, time, speed);
    for (const NodeLink& link : linksBetween(positions, maxDist)) {
        addLine(links, link, link.opacity * glowShare, glowWidth, glowBlur * glowBlur + blur);
        addLine(links, link, link.opacity, lineWidth, blur);
    }
    for (const QPointF& position : positions) {
        addDisc(links, position, nodeGlowRadius, nodeGlowOpacity, nodeGlowBlur * nodeGlowBlur + blur);
        addDisc(dots, position, dotRadius, dotOpacity, blur);
    }
    const bool dark = scheme == ColorScheme::dark;
    const QVector3D link =
        channels(dark ? QColor::fromRgbF(0.1F, 0.4F, 0.95F) : QColor::fromRgbF(0, 0.55F, 0.75F));
    const QVector3D dot = channels(dark ? QColor(Qt::white) : QColor::fromRgbF(0.1F, 0.3F, 0.6F));
    const QVector3D behind = channels(ground);
    QImage picture(cells, QImage::Format_RGB32);
    picture.fill(ground);
    for (int y = 0; y < cells.height(); ++y) {
        const float* const linkDepths = links.row(y);
        const float* const dotDepths = dots.row(y);
        auto* const pixels = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < cells.width(); ++x) {
            if (linkDepths[x] <= 0)
                continue;
            QVector3D colour = link + (behind - link) * std::exp(-linkDepths[x]);
            if (dotDepths[x] > 0)
                colour = dot + (colour - dot) * std::exp(-dotDepths[x]);
            pixels[x] = qRgb(qRound(colour.x()), qRound(colour.y()), qRound(colour.z()));
        }
    }
    return picture;
}

} // namespace ardeo
