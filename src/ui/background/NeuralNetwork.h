#pragma once

#include <QPointF>
#include <QSizeF>

#include <vector>

namespace ardeo
{

/// The curve of one node: angular frequencies in radians per scaled second, phases in radians.
struct NodeParam {
    double xFreq, yFreq, xPhase, yPhase;
};

/// Where all nodes are in a canvas of that size, in points; the time is in seconds since 1 January 2001 UTC.
std::vector<QPointF> nodePositions(QSizeF size, double time, double speed);

/// A line between two nodes that are near each other, and the more opaque the nearer they are.
struct NodeLink {
    QPointF from;
    QPointF to;
    double opacity;
};

/// The links between nodes that are nearer than the distance, in points.
std::vector<NodeLink> linksBetween(const std::vector<QPointF>& positions, double maxDist);

} // namespace ardeo
