#include "ui/background/NeuralNetwork.h"

#include <array>
#include <cmath>

namespace ardeo
{

namespace
{

constexpr std::array<NodeParam, 35> nodes{{
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

constexpr double horizontalReach = 0.46;
constexpr double verticalReach = 0.47;
constexpr double highestOpacity = 0.4;

} // namespace

std::vector<QPointF> nodePositions(QSizeF size, double time, double speed)
{
    const double scaled = time * speed;
    std::vector<QPointF> positions;
    positions.reserve(nodes.size());
    for (const NodeParam& node : nodes) {
        positions.emplace_back(
            size.width() * (0.5 + horizontalReach * std::sin(scaled * node.xFreq + node.xPhase)),
            size.height() * (0.5 + verticalReach * std::cos(scaled * node.yFreq + node.yPhase)));
    }
    return positions;
}

std::vector<NodeLink> linksBetween(const std::vector<QPointF>& positions, double maxDist)
{
    std::vector<NodeLink> links;
    for (auto from = positions.begin(); from != positions.end(); ++from) {
        for (auto to = from + 1; to != positions.end(); ++to) {
            const double distance = std::hypot(to->x() - from->x(), to->y() - from->y());
            if (distance < maxDist)
                links.push_back({*from, *to, (1 - distance / maxDist) * highestOpacity});
        }
    }
    return links;
}

} // namespace ardeo
