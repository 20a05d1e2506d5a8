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

constexpr double lineWidth = 0.8; // in points, as the other lengths
constexpr double glowWidth = 2.5;
constexpr double glowBlur = 3;
constexpr double nodeGlowRadius = 4.8;
constexpr double nodeGlowBlur = 5;
constexpr double dotRadius = 1.6;
constexpr double finalBlur = 2.5;
constexpr double glowShare = 0.45; // of the link's own opacity
constexpr double nodeGlowOpacity = 0.35;
constexpr double dotOpacity = 0.5;
constexpr double finalVariance = finalBlur * finalBlur - networkCell * networkCell / 6.0;
constexpr double glowVariance = glowBlur * glowBlur + glowWidth * glowWidth / 12 + finalVariance;
constexpr double lineVariance = lineWidth * lineWidth / 12 + finalVariance;
constexpr double nodeGlowVariance =
    nodeGlowBlur * nodeGlowBlur + nodeGlowRadius * nodeGlowRadius / 4 + finalVariance;
constexpr double dotVariance = dotRadius * dotRadius / 4 + finalVariance;
/// Deviations beyond which nothing is left of a Gaussian.
constexpr double reach = 3;
const double glowReach = reach * std::sqrt(glowVariance);
/// How sharp a link's ends are, between those of its line and of its glow.
const double endDeviation = std::sqrt((lineVariance + glowVariance) / 2);

double gaussian(double distance, double variance)
{
    return std::exp(-distance * distance / (2 * variance)) / std::sqrt(2 * std::numbers::pi * variance);
}
/// A function of a distance either way, in points, looked up.
class Profile
{
public:
    template <typename Function>
    explicit Profile(Function function)
    {
        for (size_t i = 0; i < samples.size(); ++i)
            samples[i] = function((static_cast<double>(i) + 0.5) / steps);
    }
    double at(double distance) const
    {
        return samples[std::min(static_cast<size_t>(std::abs(distance) * steps), samples.size() - 1)];
    }

private:
    static constexpr int steps = 16; // a point
    std::array<double, 20 * steps> samples{};
};

/// A link across its direction, with its glow, and how much of it there is that far from where its end begins
/// to show.
const Profile across([](double distance) {
    return lineWidth * gaussian(distance, lineVariance) +
           glowShare * glowWidth * gaussian(distance, glowVariance);
});
const Profile ending([](double distance) {
    return std::erfc((distance - reach * endDeviation) / endDeviation / std::numbers::sqrt2) / 2;
});

/// A disc is as deep as its area makes it, shared out over both ways.
Profile discProfile(double radius, double opacity, double variance)
{
    const double depth = radius * std::sqrt(opacity * std::numbers::pi);
    return Profile([=](double distance) { return depth * gaussian(distance, variance); });
}
const Profile nodeGlow = discProfile(nodeGlowRadius, nodeGlowOpacity, nodeGlowVariance);
const Profile dot = discProfile(dotRadius, dotOpacity, dotVariance);

/// Optical depths at the middle of each cell.
struct Plane {
    QSize size;
    std::vector<float> depths =
        std::vector<float>(static_cast<size_t>(size.width()) * static_cast<size_t>(size.height()));
    float& at(int x, int y) { return depths[static_cast<size_t>(y * size.width() + x)]; }
};
/// The first of the cells whose middles lie between two coordinates, and the one behind the last.
std::pair<int, int> cellsBetween(double from, double to, int count)
{
    const auto cell = [count](double place) {
        return static_cast<int>(std::clamp(place / networkCell + 0.5, 0.0, static_cast<double>(count)));
    };
    return {cell(from), cell(to)};
}

void addLink(Plane& plane, const NodeLink& link)
{
    const QPointF way = link.to - link.from;
    const double length = std::max(std::hypot(way.x(), way.y()), 1e-6);
    // Both from the link's middle: v along it, u across.
    const QPointF unit = way / length;
    const QPointF centre = (link.from + link.to) / 2;
    const double whole = length / 2 - reach * endDeviation;
    const auto [top, bottom] =
        cellsBetween(std::min(link.from.y(), link.to.y()) - glowReach,
                     std::max(link.from.y(), link.to.y()) + glowReach, plane.size.height());
    for (int y = top; y < bottom; ++y) {
        const double dy = (y + 0.5) * networkCell - centre.y();
        // Where this row is near enough to the link: within its reach across, and not far behind its ends.
        const double slope = std::max(std::abs(unit.y()), 1e-6);
        const double nearest = centre.x() + dy * unit.x() * (unit.y() < 0 ? -1 : 1) / slope;
        const auto [begin, past] = cellsBetween(
            std::max(std::min(link.from.x(), link.to.x()) - glowReach, nearest - glowReach / slope),
            std::min(std::max(link.from.x(), link.to.x()) + glowReach, nearest + glowReach / slope),
            plane.size.width());
        const double dx = (begin + 0.5) * networkCell - centre.x();
        double v = dx * unit.x() + dy * unit.y();
        double u = dx * unit.y() - dy * unit.x();
        for (int x = begin; x < past; ++x, v += unit.x() * networkCell, u += unit.y() * networkCell) {
            const double there = ending.at(std::max(std::abs(v) - whole, 0.0));
            plane.at(x, y) += static_cast<float>(link.opacity * across.at(u) * there);
        }
    }
}

/// A disc that is, each way, what the profile says of the distance.
void addDisc(Plane& plane, QPointF centre, const Profile& profile, double far)
{
    const auto [top, bottom] = cellsBetween(centre.y() - far, centre.y() + far, plane.size.height());
    const auto [begin, past] = cellsBetween(centre.x() - far, centre.x() + far, plane.size.width());
    for (int y = top; y < bottom; ++y) {
        const double here = profile.at((y + 0.5) * networkCell - centre.y());
        for (int x = begin; x < past; ++x)
            plane.at(x, y) += static_cast<float>(here * profile.at((x + 0.5) * networkCell - centre.x()));
    }
}

} // namespace

QImage drawNetwork(QSizeF size, const QRegion& seen, double time, double maxDist, double speed,
                   ColorScheme scheme, QColor ground)
{
    QImage picture(QRectF(QPointF(), size / networkCell).toAlignedRect().size(), QImage::Format_RGB32);
    picture.fill(ground);
    QRegion cells; // with their neighbours, which smooth scaling mixes in
    for (const QRect& part : seen)
        cells += QRect(part.topLeft() / networkCell, part.bottomRight() / networkCell).adjusted(-1, -1, 1, 1);
    const std::vector<QPointF> positions = nodePositions(size, time, speed);
    const std::vector<NodeLink> near = linksBetween(positions, maxDist);
    const bool dark = scheme == ColorScheme::dark;
    const QVector3D linkColour = dark ? QVector3D(25.5F, 102, 242.25F) : QVector3D(0, 140.25F, 191.25F);
    const QVector3D dotColour = dark ? QVector3D(255, 255, 255) : QVector3D(25.5F, 76.5F, 153);
    const QVector3D behind = QVector3D(ground.redF(), ground.greenF(), ground.blueF()) * 255;
    for (const QRect& part : cells.intersected(picture.rect())) {
        Plane links{part.size()};
        Plane dots{part.size()};
        const QPointF corner = part.topLeft() * networkCell;
        for (const NodeLink& link : near) {
            const NodeLink here{link.from - corner, link.to - corner, link.opacity};
            if (std::min(here.from.x(), here.to.x()) - glowReach < part.width() * networkCell &&
                std::max(here.from.x(), here.to.x()) + glowReach > 0)
                addLink(links, here);
        }
        for (const QPointF& position : positions) {
            addDisc(links, position - corner, nodeGlow, reach * std::sqrt(nodeGlowVariance));
            addDisc(dots, position - corner, dot, reach * std::sqrt(dotVariance));
        }
        for (int y = 0; y < part.height(); ++y) {
            auto* const pixels = reinterpret_cast<QRgb*>(picture.scanLine(part.top() + y)) + part.left();
            for (int x = 0; x < part.width(); ++x) {
                if (links.at(x, y) <= 0)
                    continue;
                QVector3D colour = linkColour + (behind - linkColour) * std::exp(-links.at(x, y));
                if (dots.at(x, y) > 0)
                    colour = dotColour + (colour - dotColour) * std::exp(-dots.at(x, y));
                pixels[x] = qRgb(qRound(colour.x()), qRound(colour.y()), qRound(colour.z()));
            }
        }
    }
    return picture;
}

} // namespace ardeo
