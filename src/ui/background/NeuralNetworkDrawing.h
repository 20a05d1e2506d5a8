#pragma once

#include "ui/elements/ColorScheme.h"

#include <QColor>
#include <QImage>
#include <QRegion>
#include <QSizeF>

namespace ardeo
{

/// How many points a pixel of the small picture stands for, each way.
inline constexpr int networkCell = 3;

/// The network in a canvas of that size, in points, on opaque ground, as a small picture of one pixel for
/// each cell of the canvas; the last ones may stand out over its edge. Where it is not seen there is nothing
/// but ground. The time is in seconds since 1 January 2001 UTC.
QImage drawNetwork(QSizeF size, const QRegion& seen, double time, double maxDist, double speed,
                   ColorScheme scheme, QColor ground);

} // namespace ardeo
