#include "ui/NeuralNetworkFrame.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <type_traits>
#include <utility>

// How a frame is drawn fast. Links, their glows and the glows of the nodes have one colour, so that their
// layers come down to a product of transmittances, in any order; only the dots have a colour of their own. So
// a frame is two planes of weights: that of the link colour and, near the nodes, that of the dot colour.
//
// The blur of the whole leaves nothing finer than a few points. Hence the plane is composed at one sample per
// point ("fine"; on a fine screen the lines alone have four times as many), blurred at one sample per two
// points ("coarse") and brought to device pixels by cubic splines. All that smooths adds up in variance, so
// each blur is narrowed by what the resampling around it blurs by itself. The glows are smooth and drawn on
// the coarse grid to begin with.
//
// Nodes are slow beside the blur, too. So the coarse planes are composed ten times a second or so, at moments
// that are the same for everybody, and a frame is a mixture of the two around it. Of a frame only that part
// is computed which shows, and its pixels only when they are put on the screen.

// The work on whole planes is compiled twice: for every processor of the kind, and for those that take eight
// samples at once. The latter matters for more than that. Qt's painting leaves the upper halves of the wide
// registers in use, and with these some processors run narrow instructions four times slower.
#if defined(__x86_64__) && defined(__GLIBC__) && !defined(__SANITIZE_THREAD__) && !defined(__clang__)
#define ARDEO_WIDE [[gnu::target_clones("arch=x86-64-v3", "default")]]
#else
#define ARDEO_WIDE
#endif

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
/// In points; a blur's deviation is 2.5.
constexpr double mixableWay = 1.6;
constexpr double longestInterval = 1;
constexpr double shortestInterval = 0.05;
constexpr double linkOpacity = 0.4;
constexpr double linkWidth = 0.8;
constexpr double linkGlowOpacity = 0.45;
constexpr double linkGlowWidth = 2.5;
constexpr double linkGlowBlur = 3;
constexpr double nodeGlowRadius = 4.8;
constexpr double nodeGlowBlur = 5;
constexpr double nodeGlowOpacity = 0.35;
constexpr double dotRadius = 1.6;
constexpr double dotOpacity = 0.5;
constexpr double finalBlur = 2.5;

// Variances are in square points here; a coarse sample is two points wide.
constexpr double coarseCell = 4;
constexpr double pixelVariance = 1.0 / 12;
constexpr double refiningVariance = 0.75;
constexpr double coarseningVariance = 0.75;
constexpr double splineVariance = coarseCell / 3;
constexpr double glowLineVariance = 0.25 * coarseCell;
constexpr double linkGlowVariance =
    linkGlowBlur * linkGlowBlur + linkGlowWidth * linkGlowWidth / 12 + pixelVariance;

constexpr int nodeGlowReach = 22;
constexpr int nodeGlowSteps = 2; // per square point
constexpr int nodeGlowEnd = nodeGlowReach * nodeGlowReach * nodeGlowSteps;
constexpr int dotBlock = 8;

struct Palette {
    std::array<float, 3> link;
    std::array<float, 3> dot;
};
constexpr Palette lightPalette{{0.0F, 0.55F, 0.75F}, {0.1F, 0.3F, 0.6F}};
constexpr Palette darkPalette{{0.1F, 0.4F, 0.95F}, {1, 1, 1}};

double square(double value)
{
    return value * value;
}

/// How much of a sample is covered by a line of that slope whose middle passes at that distance across.
double lineCoverage(double distance, double slope, double width)
{
    constexpr int parts = 16;
    const double half = width / 2 * std::hypot(1, slope);
    double sum = 0;
    for (int part = 0; part < parts; ++part) {
        const double shift = slope * ((part + 0.5) / parts - 0.5);
        sum += std::clamp(half + 0.5 - std::abs(distance + shift), 0.0, std::min(1.0, 2 * half));
    }
    return sum / parts;
}

/// The same for the line of a link's glow among coarse samples, smoother so that these can show where it is.
double glowLineDensity(double distance, double slope, double)
{
    return std::exp(-square(distance) / (2 * glowLineVariance / coarseCell * (1 + square(slope))));
}

/// How much of a pixel is covered by a dot at that distance.
double dotCoverage(double x, double y)
{
    constexpr int parts = 8;
    double sum = 0;
    for (int part = 0; part < parts; ++part) {
        const double chord = square(dotRadius) - square(y + (part + 0.5) / parts - 0.5);
        if (chord > 0)
            sum += std::max(0.0, std::min(x + 0.5, std::sqrt(chord)) - std::max(x - 0.5, -std::sqrt(chord)));
    }
    return sum / parts;
}

/// A weight of 1 in a plane, a little less than the whole so that rounding stays below it.
constexpr float wholeSample = 255 * 256;
constexpr Share halfStep = 128;

constexpr Share shareOf(double part)
{
    return static_cast<Share>(std::min(part * 65536, 65535.0));
}

/// How a weight moves one channel of the picture away from the ground.
struct Way {
    Share length;
    Share sign; // 0 for up, all bits for down: what turns a number into its negative when flipped
};

constexpr Way wayBetween(double from, double to)
{
    return from <= to ? Way{shareOf(to - from), 0} : Way{shareOf(from - to), 0xFFFF};
}

/// One channel of the ground, and its ways to the colours of links and dots.
struct Channel {
    Share ground;
    Way link;
    Way dot;
};

[[gnu::always_inline]] inline Share times(Share sample, Share share)
{
    return static_cast<Share>(static_cast<std::uint32_t>(sample) * share >> 16);
}

[[gnu::always_inline]] inline Share along(Way way, Share weight)
{
    return static_cast<Share>((times(weight, way.length) ^ way.sign) - way.sign);
}

/// The value of a cubic spline between four neighbours.
[[gnu::always_inline]] inline Share between(Share first, Share second, Share third, Share fourth,
                                            const std::array<Share, 4>& weights)
{
    return static_cast<Share>(times(first, weights[0]) + times(second, weights[1]) +
                              times(third, weights[2]) + times(fourth, weights[3]));
}

/// exp(-depth) for depths from 0, without a branch, so that a row of them is computed side by side.
inline float transmittance(float depth)
{
    const float part = (depth < 16 ? depth : 16) / 16;
    float value =
        1 - part * (0.9999687F -
                    part * (0.4995978F - part * (0.1649172F - part * (0.0382126F - part * 0.0050453F))));
    value *= value;
    value *= value;
    value *= value;
    return value * value;
}

/// A part of a row of the picture, which begins at the pixel left: down by the four expanded rows, then to 8
/// bits.
template <bool withDots>
[[gnu::always_inline]] inline void
writeRow(std::uint32_t* __restrict out, int left, int from, int to, const std::array<const Share*, 4>& links,
         const std::array<const Share*, 4>& dots, const std::array<Share, 4>& weights,
         const std::array<Channel, 3>& channels)
{
    const auto [l0, l1, l2, l3] = links;
    const auto [d0, d1, d2, d3] = dots;
    const auto [r, g, b] = channels;
    for (int x = from; x < to; ++x) {
        const Share link = between(l0[x], l1[x], l2[x], l3[x], weights);
        auto red = static_cast<Share>(r.ground + along(r.link, link));
        auto green = static_cast<Share>(g.ground + along(g.link, link));
        auto blue = static_cast<Share>(b.ground + along(b.link, link));
        if constexpr (withDots) {
            const Share dot = between(d0[x], d1[x], d2[x], d3[x], weights);
            red = static_cast<Share>(red + along(r.dot, dot));
            green = static_cast<Share>(green + along(g.dot, dot));
            blue = static_cast<Share>(blue + along(b.dot, dot));
        }
        const auto upper = static_cast<Share>(0xFF00 | red >> 8);
        const auto lower = static_cast<Share>((green & 0xFF00) | blue >> 8);
        out[x - left] = static_cast<std::uint32_t>(upper) << 16 | lower;
    }
}

std::array<Channel, 3> channelsOf(ColorScheme scheme, QColor ground)
{
    const Palette& palette = scheme == ColorScheme::dark ? darkPalette : lightPalette;
    const std::array<double, 3> grounds{ground.redF(), ground.greenF(), ground.blueF()};
    std::array<Channel, 3> channels;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        channels[i] = {static_cast<Share>(std::lround(grounds[i] * wholeSample) + halfStep),
                       wayBetween(grounds[i], palette.link[i]), wayBetween(grounds[i], palette.dot[i])};
    }
    return channels;
}

/// How far apart in time two compositions are, in seconds, so that their mixture looks like what is between
/// them: what a node moves meanwhile is little beside the blur. 0 if nodes are so fast that there would be
/// nothing between.
double intervalFor(QSizeF size, double speed)
{
    double fastest = 0; // points per second
    for (const NodeParam& node : nodes) {
        fastest = std::max(fastest, std::abs(speed) * std::hypot(size.width() * horizontalReach * node.xFreq,
                                                                 size.height() * verticalReach * node.yFreq));
    }
    const double interval = std::min(mixableWay / fastest, longestInterval);
    return interval < shortestInterval ? 0 : interval;
}

QRegion grown(const QRegion& region, int margin)
{
    QRegion result;
    for (const QRect& rect : region)
        result += rect.adjusted(-margin, -margin, margin, margin);
    return result;
}

/// The same region in samples of which there are more to a length.
QRegion refined(const QRegion& region, int times)
{
    QRegion result;
    for (const QRect& rect : region)
        result += QRect(rect.topLeft() * times, rect.size() * times);
    return result;
}

} // namespace

std::span<const NodeParam> neuralNetworkNodes()
{
    return nodes;
}

std::vector<QPointF> nodePositions(QSizeF size, double time, double speed)
{
    const double angle = time * speed;
    std::vector<QPointF> positions;
    positions.reserve(nodes.size());
    for (const NodeParam& node : nodes) {
        positions.emplace_back(
            size.width() * (0.5 + horizontalReach * std::sin(angle * node.xFreq + node.xPhase)),
            size.height() * (0.5 + verticalReach * std::cos(angle * node.yFreq + node.yPhase)));
    }
    return positions;
}

template <typename Sample>
void NeuralNetworkRenderer::Grid<Sample>::reshape(int columns, int rows)
{
    m_columns = columns;
    m_rows = rows;
    m_stride = columns + 2 * margin;
    m_samples.assign(static_cast<std::size_t>(m_stride * (rows + 2 * margin)), Sample{});
}

template <typename Sample>
QRect NeuralNetworkRenderer::Grid<Sample>::area(int border) const
{
    return QRect(0, 0, m_columns, m_rows).adjusted(-border, -border, border, border);
}

template <typename Sample>
void NeuralNetworkRenderer::Grid<Sample>::fill(const QRegion& region, Sample value)
{
    const QRect all = area(margin);
    for (const QRect& rect : region) {
        const QRect part = rect & all;
        for (int y = part.top(); y <= part.bottom(); ++y)
            std::fill_n(row(y) + part.left(), part.width(), value);
    }
}

void NeuralNetworkRenderer::Blocks::cover(const QRegion& region, QSize plane)
{
    m_columns = (plane.width() >> side) + 1;
    m_marks.assign(index(0, (plane.height() >> side) + 1), 0);
    m_region = {};
    for (const QRect& rect : region.intersected(QRect(QPoint(), plane))) {
        const QRect blocks(QPoint(rect.left() >> side, rect.top() >> side),
                           QPoint(rect.right() >> side, rect.bottom() >> side));
        for (int row = blocks.top(); row <= blocks.bottom(); ++row)
            std::fill_n(m_marks.data() + index(blocks.left(), row), blocks.width(), std::uint8_t{1});
        m_region += QRect(blocks.topLeft() * (1 << side), blocks.size() * (1 << side));
    }
}

template <typename Profile>
NeuralNetworkRenderer::LineProfiles::LineProfiles(Profile profile, double width)
{
    m_samples.reserve((slopes + 1) * phases);
    for (int step = 0; step <= slopes; ++step) {
        const double slope = static_cast<double>(step) / slopes;
        for (int phase = 0; phase < phases; ++phase) {
            Samples samples;
            double sum = 0;
            for (std::size_t i = 0; i < samples.size(); ++i) {
                const double distance = static_cast<double>(i) - 1 - (phase + 0.5) / phases;
                samples[i] = static_cast<float>(profile(distance, slope, width));
                sum += samples[i];
            }
            for (float& sample : samples)
                sample *= static_cast<float>(width * std::hypot(1, slope) / sum);
            m_samples.push_back(samples);
        }
    }
}

const NeuralNetworkRenderer::LineProfiles::Samples*
NeuralNetworkRenderer::LineProfiles::of(double slope) const
{
    return m_samples.data() + std::lround(std::abs(slope) * slopes) * phases;
}

NeuralNetworkRenderer::NeuralNetworkRenderer(double maxDist, double speed)
    : m_maxDist(maxDist)
    , m_speed(speed)
    , m_lineProfiles(lineCoverage, linkWidth)
    , m_finestLineProfiles(lineCoverage, 2 * linkWidth)
    , m_glowProfiles(glowLineDensity, linkGlowWidth / 2)
    , m_glowKernel(kernelOf((linkGlowVariance - glowLineVariance - refiningVariance) / coarseCell))
{
    // A blurred disc: slices of it, each a Gaussian across and a difference of error functions along.
    constexpr int slices = 48;
    const double deviation = std::sqrt(square(nodeGlowBlur) + pixelVariance - refiningVariance);
    std::array<double, slices> along;
    for (int i = 0; i < slices; ++i) {
        const double offset = (2 * (i + 0.5) / slices - 1) * nodeGlowRadius;
        along[static_cast<std::size_t>(i)] = std::erf(std::sqrt(square(nodeGlowRadius) - offset * offset) /
                                                      (deviation * std::numbers::sqrt2)) *
                                             2 * nodeGlowRadius / slices /
                                             (deviation * std::sqrt(2 * std::numbers::pi));
    }
    for (int step = 0; step < nodeGlowEnd; ++step) {
        const double radius = std::sqrt((step + 0.5) / nodeGlowSteps);
        double density = 0;
        for (int i = 0; i < slices; ++i) {
            const double offset = (2 * (i + 0.5) / slices - 1) * nodeGlowRadius;
            density +=
                along[static_cast<std::size_t>(i)] * std::exp(-square((radius - offset) / deviation) / 2);
        }
        m_nodeGlow.push_back(static_cast<float>(1 - nodeGlowOpacity * density));
    }
    m_nodeGlow.push_back(1);
}

NeuralNetworkRenderer::Kernel NeuralNetworkRenderer::kernelOf(double variance)
{
    // The kernel ends early, which takes from its variance: start from a wider Gaussian until that is right.
    Kernel kernel{};
    double wider = variance;
    for (int round = 0; round < 12; ++round) {
        std::array<double, std::tuple_size_v<Kernel>> shares{};
        double sum = 0;
        double squares = 0;
        for (std::size_t i = 0; i < shares.size(); ++i) {
            const auto distance = static_cast<double>(i);
            shares[i] = std::exp(-distance * distance / (2 * wider));
            sum += shares[i] * (i == 0 ? 1 : 2);
            squares += shares[i] * distance * distance * 2;
        }
        for (std::size_t i = 0; i < shares.size(); ++i)
            kernel[i] = static_cast<float>(shares[i] / sum);
        wider *= variance * sum / squares;
    }
    return kernel;
}

std::vector<NeuralNetworkRenderer::Tap> NeuralNetworkRenderer::tapsOf(int pixels, double scale)
{
    std::vector<Tap> taps;
    taps.reserve(static_cast<std::size_t>(pixels));
    for (int i = 0; i < pixels; ++i) {
        const double position = ((i + 0.5) / scale - 1) / 2;
        const double t = position - std::floor(position);
        const double u = 1 - t;
        taps.push_back({static_cast<int>(std::floor(position)) - 1,
                        {shareOf(u * u * u / 6), shareOf((4 - 3 * t * t * (2 - t)) / 6),
                         shareOf((4 - 3 * u * u * (2 - u)) / 6), shareOf(t * t * t / 6)}});
    }
    return taps;
}

void NeuralNetworkRenderer::compose(QSizeF size, double time, qreal devicePixelRatio, const QRegion& part)
{
    if (size != m_size || devicePixelRatio != m_scale)
        prepare(size, devicePixelRatio);
    choose(part);
    bool changed = false;
    if (m_interval > 0) {
        const double moment = std::floor(time / m_interval);
        const double before = moment * m_interval;
        if (m_after.time == before)
            std::swap(m_before, m_after);
        changed = composeAt(m_before, before);
        changed = composeAt(m_after, (moment + 1) * m_interval) || changed;
        const Share weight = shareOf(std::clamp((time - before) / m_interval, 0.0, 1.0));
        m_weights = {static_cast<Share>(~weight), weight};
    } else {
        changed = composeAt(m_before, time);
        m_weights = {shareOf(1), 0};
    }
    if (changed)
        std::ranges::transform(m_before.dotBlocks, m_after.dotBlocks, m_dotBlocks.begin(), std::bit_or());
}

/// Composes what is asked for at that time; false if it is there already.
bool NeuralNetworkRenderer::composeAt(Composition& composition, double time)
{
    if (composition.time == time && (m_blurred - composition.region).isEmpty())
        return false;
    composition.time = time;
    composition.region = m_blurred;
    const std::vector<QPointF> positions = nodePositions(m_size, time, m_speed);
    findLinks(positions);
    drawGlows(positions);
    refine();
    drawLines();
    drawDots(composition, positions);
    coarsen();
    blur(m_coarse, m_finalKernel, m_blurred, composition.links);
    return true;
}

/// Finds out what the stages have to do for that part of the picture, given in points.
void NeuralNetworkRenderer::choose(const QRegion& part)
{
    if (part == m_part)
        return;
    m_part = part;
    m_blurred = {};
    for (const QRect& rect : part) {
        const QRectF inPixels(QPointF(rect.topLeft()) * m_scale, QSizeF(rect.size()) * m_scale);
        const QRect area = inPixels.toAlignedRect() & QRect(QPoint(), m_pixels);
        if (area.isEmpty())
            continue;
        const auto first = [](const std::vector<Tap>& taps, int pixel) {
            return taps[static_cast<std::size_t>(pixel)].first;
        };
        m_blurred +=
            QRect(QPoint(first(m_columnTaps, area.left()), first(m_rowTaps, area.top())),
                  QPoint(first(m_columnTaps, area.right()) + 3, first(m_rowTaps, area.bottom()) + 3));
    }
    // A line leaves something up to two samples beside it. All that lines change is brought down anew for
    // each frame: what is only ever multiplied ends in numbers too small to be computed fast.
    const QSize plane(m_coarse.columns(), m_coarse.rows());
    m_coarsened = grown(m_blurred, kernelReach);
    m_lineBlocks.cover(grown(m_coarsened, 2), plane);
    m_fineNeeded = grown(m_lineBlocks.region(), 1) & m_coarse.area(0);
    m_glowing = grown(m_coarsened, 2);
    m_glowLineBlocks.cover(grown(m_glowing, kernelReach + 2), plane);
}

void NeuralNetworkRenderer::prepare(QSizeF size, double scale)
{
    m_size = size;
    m_pixels = (size * scale).toSize();
    m_scale = scale;
    m_interval = intervalFor(size, m_speed);
    m_part = {};
    const int columns = static_cast<int>(std::ceil(m_pixels.width() / scale / 2 - 1e-6));
    const int rows = static_cast<int>(std::ceil(m_pixels.height() / scale / 2 - 1e-6));
    m_coarse.reshape(columns, rows);
    m_scratch.reshape(columns, rows);
    m_fine.reshape(2 * columns, 2 * rows);
    // Where lines overlap, it shows in their product how sharp their edges were before the blur.
    m_needsFinest = scale >= 1.5;
    m_finest.reshape(m_needsFinest ? 4 * columns : 0, m_needsFinest ? 4 * rows : 0);
    m_line.resize(static_cast<std::size_t>(m_fine.stride()));
    m_coarseShares.resize(static_cast<std::size_t>(m_coarse.stride()));
    m_expandedStride = static_cast<std::ptrdiff_t>(std::ceil(2 * scale)) * columns;
    m_expanded.resize(8 * static_cast<std::size_t>(m_expandedStride));

    // On a finer screen the edges of lines are drawn sharper than the fine grid has them.
    const double sharper = (1 - 1 / (scale * scale)) * pixelVariance;
    m_finalKernel =
        kernelOf((square(finalBlur) - coarseningVariance - splineVariance - sharper) / coarseCell);
    m_dotKernels = {};
    for (std::size_t i = 0; i < 9; ++i) {
        const float share = m_finalKernel[i < 4 ? 4 - i : i - 4];
        m_dotKernels[0][i] += share * 0.125F;
        m_dotKernels[0][i + 1] += share * 0.375F;
        m_dotKernels[1][i] += share * 0.375F;
        m_dotKernels[1][i + 1] += share * 0.125F;
    }

    m_columnTaps = tapsOf(m_pixels.width(), scale);
    m_rowTaps = tapsOf(m_pixels.height(), scale);
    m_blockEnds.assign(static_cast<std::size_t>((columns + 2 * Plane::margin) / dotBlock + 1), 0);
    for (std::size_t i = 0; i < m_columnTaps.size(); ++i)
        m_blockEnds[static_cast<std::size_t>((m_columnTaps[i].first + Plane::margin) / dotBlock)] =
            static_cast<int>(i) + 1;
    for (std::size_t i = 1; i < m_blockEnds.size(); ++i)
        m_blockEnds[i] = std::max(m_blockEnds[i], m_blockEnds[i - 1]);
    m_dotBlocks.resize(m_blockEnds.size() * static_cast<std::size_t>(rows + 2 * Plane::margin));
    for (Composition* composition : {&m_before, &m_after}) {
        *composition = {};
        composition->links.reshape(columns, rows);
        composition->dots.reshape(columns, rows);
        composition->dotBlocks.resize(m_dotBlocks.size());
    }
}

/// Steps along the main direction of a line, one sample at a time; the points count in samples of the plane,
/// the blocks' side as a binary logarithm.
template <typename Combine>
[[gnu::always_inline]] inline void
NeuralNetworkRenderer::drawLine(Plane& plane, const LineProfiles& profiles, QPointF from, QPointF to,
                                const Blocks& blocks, int blockSide, Combine combine)
{
    const bool steep = std::abs(to.y() - from.y()) > std::abs(to.x() - from.x());
    const std::ptrdiff_t across = steep ? 1 : plane.stride();
    const std::ptrdiff_t onward = steep ? plane.stride() : 1;
    if (steep) {
        from = from.transposed();
        to = to.transposed();
    }
    if (from.x() > to.x())
        std::swap(from, to);
    const double slope = (to.y() - from.y()) / (to.x() - from.x());
    const LineProfiles::Samples* const profile = profiles.of(slope);
    float* const origin = plane.row(0);
    const auto isSeen = [&](int step, double at) {
        const int main = step >> blockSide;
        const int other = static_cast<int>(at) >> blockSide;
        return steep ? blocks.contain(other, main) : blocks.contain(main, other);
    };
    const int last = static_cast<int>(std::floor(to.x() + 0.5));
    for (int step = static_cast<int>(std::floor(from.x() + 0.5)); step <= last;) {
        // To the end of the block; there the line may have come to the next one beside.
        const int stop = std::min(last, step | ((1 << blockSide) - 1));
        const double here = from.y() + slope * (step - from.x());
        if (!isSeen(step, here) && !isSeen(step, here + slope * (stop - step))) {
            step = stop + 1;
            continue;
        }
        for (; step <= stop; ++step) {
            const double begin = std::max(step - 0.5, from.x());
            const double end = std::min(step + 0.5, to.x());
            const double middle = from.y() + slope * ((begin + end) / 2 - from.x()) + Plane::margin;
            const int whole = static_cast<int>(middle); // the margin has made it positive
            const auto phase = static_cast<int>((middle - whole) * LineProfiles::phases);
            const LineProfiles::Samples& samples = profile[phase];
            float* const target = origin + step * onward + (whole - Plane::margin - 1) * across;
            const auto length = static_cast<float>(end - begin);
            combine(target[0], length * samples[0]);
            combine(target[across], length * samples[1]);
            combine(target[2 * across], length * samples[2]);
            combine(target[3 * across], length * samples[3]);
        }
    }
}

/// Finds each pair of nodes that are linked, and the opacity of the link.
void NeuralNetworkRenderer::findLinks(const std::vector<QPointF>& positions)
{
    m_links.clear();
    for (std::size_t i = 0; i < positions.size(); ++i) {
        for (std::size_t j = i + 1; j < positions.size(); ++j) {
            const QPointF way = positions[j] - positions[i];
            const double distance = std::sqrt(QPointF::dotProduct(way, way));
            // Without length there is no line to see, nor a direction.
            if (distance < m_maxDist && distance > 0)
                m_links.push_back({positions[i], positions[j], (1 - distance / m_maxDist) * linkOpacity});
        }
    }
}

/// Leaves the transmittance of all glows in the coarse plane.
ARDEO_WIDE void NeuralNetworkRenderer::drawGlows(const std::vector<QPointF>& positions)
{
    // One blur for all links: their optical depths add up, and for one link depth and opacity are nearly the
    // same. What the depth has more is proportional to the square of the profile; the constant gives it on
    // the whole.
    const double peak = linkGlowWidth / std::sqrt(2 * std::numbers::pi * linkGlowVariance);
    const auto coarse = [](QPointF point) { return (point - QPointF(1, 1)) / 2; };
    m_coarse.fill(grown(m_glowLineBlocks.region(), 2), 0);
    for (const auto& [from, to, opacity] : m_links) {
        const double depth = opacity * linkGlowOpacity * (1 + 0.35 * peak * opacity * linkGlowOpacity);
        drawLine(
            m_coarse, m_glowProfiles, coarse(from), coarse(to), m_glowLineBlocks, Blocks::side,
            [weight = static_cast<float>(depth)](float& sample, float share) { sample += weight * share; });
    }
    blur(m_coarse, m_glowKernel, m_glowing, m_coarse);
    const QRegion seen = m_glowing & m_coarse.area(1);
    for (const QRect& part : seen) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            float* const row = m_coarse.row(y);
            for (int x = part.left(); x <= part.right(); ++x)
                row[x] = transmittance(row[x]);
        }
    }
    for (const QPointF& position : positions) {
        const QPointF centre = coarse(position);
        constexpr double reach = nodeGlowReach / 2.0;
        const QRect disc(QPoint(static_cast<int>(std::ceil(centre.x() - reach)),
                                static_cast<int>(std::ceil(centre.y() - reach))),
                         QPoint(static_cast<int>(std::floor(centre.x() + reach)),
                                static_cast<int>(std::floor(centre.y() + reach))));
        for (const QRect& rect : seen) {
            const QRect part = rect & disc;
            for (int y = part.top(); y <= part.bottom(); ++y) {
                float* const row = m_coarse.row(y);
                const auto centreX = static_cast<float>(centre.x());
                const auto squareY = static_cast<float>(square(y - centre.y()));
                for (int x = part.left(); x <= part.right(); ++x) {
                    const float way = static_cast<float>(x) - centreX;
                    row[x] *= glowTransmittance((way * way + squareY) * static_cast<float>(coarseCell));
                }
            }
        }
    }
}

/// What a node's glow lets through; a table saves the integral.
inline float NeuralNetworkRenderer::glowTransmittance(float squareDistance) const
{
    return m_nodeGlow[static_cast<std::size_t>(
        std::min(static_cast<int>(squareDistance * nodeGlowSteps), nodeGlowEnd))];
}

/// Adds the lines to the fine plane.
ARDEO_WIDE void NeuralNetworkRenderer::drawLines()
{
    Plane& plane = m_needsFinest ? m_finest : m_fine;
    const LineProfiles& profiles = m_needsFinest ? m_finestLineProfiles : m_lineProfiles;
    const double density = m_needsFinest ? 2 : 1;
    const int blockSide = Blocks::side + (m_needsFinest ? 2 : 1);
    const QPointF half(0.5, 0.5);
    if (m_needsFinest)
        m_finest.fill(refined(m_fineNeeded, 4), 1);
    for (const auto& [from, to, opacity] : m_links) {
        drawLine(plane, profiles, from * density - half, to * density - half, m_lineBlocks, blockSide,
                 [weight = static_cast<float>(opacity)](float& sample, float share) {
                     sample -= sample * weight * share;
                 });
    }
    if (!m_needsFinest)
        return;
    for (const QRect& part : m_fineNeeded) {
        for (int y = 2 * part.top(); y < 2 * part.bottom() + 2; ++y) {
            const float* const upper = m_finest.row(2 * y);
            const float* const lower = m_finest.row(2 * y + 1);
            float* __restrict const out = m_fine.row(y);
            for (int x = 2 * part.left(); x < 2 * part.right() + 2; ++x)
                out[x] *= (upper[2 * x] + upper[2 * x + 1] + lower[2 * x] + lower[2 * x + 1]) / 4;
        }
    }
}

/// The dots take part in the order of the nodes: the few pixels they touch are composed anew, node by node.
ARDEO_WIDE void NeuralNetworkRenderer::drawDots(Composition& composition,
                                                const std::vector<QPointF>& positions)
{
    for (const QRect& rect : composition.dotted)
        composition.dots.fill(rect, 0);
    composition.dotted.clear();
    std::fill(composition.dotBlocks.begin(), composition.dotBlocks.end(), std::uint8_t{0});
    const int columns =
        std::min(m_fine.columns(), static_cast<int>(std::ceil(m_pixels.width() / m_scale - 1e-6)));
    const int rows = std::min(m_fine.rows(), static_cast<int>(std::ceil(m_pixels.height() / m_scale - 1e-6)));
    const auto touches = [](QPointF way) {
        return std::max(std::abs(way.x()), std::abs(way.y())) < dotRadius + 0.5;
    };
    std::vector<QPointF> near;
    for (const QPointF& centre : positions) {
        const QPoint coarse = (centre / 2).toPoint();
        constexpr QPoint reach(kernelReach + 3, kernelReach + 3);
        const QRect reached(coarse - reach, coarse + reach);
        if (!m_blurred.intersects(reached))
            continue;
        composition.dotted.push_back(reached);
        // In their order, the nodes whose glow or dot reaches a pixel of this dot.
        near.clear();
        std::size_t earlier = 0;
        for (const QPointF& position : positions) {
            const QPointF way = position - centre;
            if (&position == &centre)
                earlier = near.size();
            if (std::max(std::abs(way.x()), std::abs(way.y())) < nodeGlowReach + dotRadius + 1)
                near.push_back(position);
        }
        const int bottom = std::min(rows, static_cast<int>(centre.y()) + 3);
        const int right = std::min(columns, static_cast<int>(centre.x()) + 3);
        for (int y = std::max(0, static_cast<int>(centre.y()) - 2); y < bottom; ++y) {
            for (int x = std::max(0, static_cast<int>(centre.x()) - 2); x < right; ++x) {
                const QPointF pixel(x + 0.5, y + 0.5);
                if (!touches(pixel - centre) ||
                    std::any_of(near.begin(), near.begin() + static_cast<std::ptrdiff_t>(earlier),
                                [&](QPointF other) { return touches(pixel - other); }))
                    continue; // or else composed already
                const auto glowAt = [&](QPointF position) {
                    const QPointF way = pixel - position;
                    return glowTransmittance(static_cast<float>(QPointF::dotProduct(way, way)));
                };
                float glow = 1;
                for (const QPointF& position : near)
                    glow *= glowAt(position);
                float& sample = m_fine.row(y)[x];
                float through = sample / glow;
                float dots = 0;
                for (const QPointF& position : near) {
                    through *= glowAt(position);
                    dots *= glowAt(position);
                    const QPointF way = pixel - position;
                    if (touches(way)) {
                        const auto dot = static_cast<float>(dotOpacity * dotCoverage(way.x(), way.y()));
                        through = 1 - (1 - through) * (1 - dot);
                        dots += (1 - dots) * dot;
                    }
                }
                sample = through;
                drawDotPixel(composition, x, y, dots);
            }
        }
    }
}

/// Adds a pixel of dot colour to the plane of the dots, coarsened and blurred at once.
void NeuralNetworkRenderer::drawDotPixel(Composition& composition, int x, int y, float weight)
{
    const auto& across = m_dotKernels[static_cast<std::size_t>(x % 2)];
    const auto& down = m_dotKernels[static_cast<std::size_t>(y % 2)];
    const int left = x / 2 - 5 + x % 2;
    const int top = y / 2 - 5 + y % 2;
    for (std::size_t j = 0; j < down.size(); ++j) {
        Share* const row = composition.dots.row(top + static_cast<int>(j)) + left;
        const float share = wholeSample * weight * down[j];
        for (std::size_t i = 0; i < across.size(); ++i)
            row[i] = static_cast<Share>(row[i] + static_cast<Share>(share * across[i]));
    }
    // Marked are the taps that read any of these samples.
    const int firstBlock = std::max(0, left - 3 + Plane::margin) / dotBlock;
    const int lastBlock = (left + 9 + Plane::margin) / dotBlock;
    const int blocks = static_cast<int>(m_blockEnds.size());
    for (int j = std::max(0, top - 3 + Plane::margin); j <= top + 9 + Plane::margin; ++j)
        std::fill_n(composition.dotBlocks.begin() + j * blocks + firstBlock, lastBlock - firstBlock + 1,
                    std::uint8_t{1});
}

template <typename Sample>
ARDEO_WIDE void NeuralNetworkRenderer::blur(Plane& plane, const Kernel& kernel, const QRegion& region,
                                            Grid<Sample>& result)
{
    const auto [k0, k1, k2, k3, k4] = kernel;
    const QRegion blurred = region & plane.area(Plane::margin - kernelReach);
    for (const QRect& part : blurred) {
        for (int y = part.top() - kernelReach; y <= part.bottom() + kernelReach; ++y) {
            const float* const in = plane.row(y);
            float* __restrict const out = m_scratch.row(y);
            for (int x = part.left(); x <= part.right(); ++x)
                out[x] = k0 * in[x] + k1 * (in[x - 1] + in[x + 1]) + k2 * (in[x - 2] + in[x + 2]) +
                         k3 * (in[x - 3] + in[x + 3]) + k4 * (in[x - 4] + in[x + 4]);
        }
    }
    const std::ptrdiff_t next = plane.stride();
    for (const QRect& part : blurred) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            const float* const in = m_scratch.row(y);
            Sample* __restrict const out = result.row(y);
            for (int x = part.left(); x <= part.right(); ++x) {
                const float sum = k0 * in[x] + k1 * (in[x - next] + in[x + next]) +
                                  k2 * (in[x - 2 * next] + in[x + 2 * next]) +
                                  k3 * (in[x - 3 * next] + in[x + 3 * next]) +
                                  k4 * (in[x - 4 * next] + in[x + 4 * next]);
                if constexpr (std::is_same_v<Sample, Share>)
                    out[x] = static_cast<Share>(std::max(sum, 0.0F) * wholeSample);
                else
                    out[x] = sum;
            }
        }
    }
}

/// Brings the coarse plane to the fine one, linearly.
ARDEO_WIDE void NeuralNetworkRenderer::refine()
{
    float* __restrict const line = m_line.data() + 1;
    for (const QRect& part : m_fineNeeded) {
        for (int y = 2 * part.top(); y < 2 * part.bottom() + 2; ++y) {
            const float* const near = m_coarse.row(y / 2);
            const float* const far = m_coarse.row(y / 2 + (y % 2 == 0 ? -1 : 1));
            for (int x = part.left() - 1; x <= part.right() + 1; ++x)
                line[x] = 0.75F * near[x] + 0.25F * far[x];
            float* __restrict const out = m_fine.row(y);
            for (int x = part.left(); x <= part.right(); ++x) {
                out[2 * x] = 0.25F * line[x - 1] + 0.75F * line[x];
                out[2 * x + 1] = 0.75F * line[x] + 0.25F * line[x + 1];
            }
        }
    }
}

/// Brings the opacity of the fine plane to the coarse one. The canvas ends at its edges.
ARDEO_WIDE void NeuralNetworkRenderer::coarsen()
{
    const double width = m_pixels.width() / m_scale;
    const double height = m_pixels.height() / m_scale;
    const int wholeColumns = static_cast<int>(width + 1e-6);
    const int wholeRows = static_cast<int>(height + 1e-6);
    const auto columnShare = static_cast<float>(std::max(0.0, width - wholeColumns));
    const auto rowShare = static_cast<float>(std::max(0.0, height - wholeRows));
    for (int y = -Plane::margin; y < m_fine.rows() + Plane::margin; ++y) {
        float* const row = m_fine.row(y);
        if (y < 0 || y > wholeRows) {
            std::fill(row - Plane::margin, row + m_fine.columns() + Plane::margin, 1.0F);
            continue;
        }
        std::fill(row - Plane::margin, row, 1.0F);
        row[wholeColumns] = 1 - (1 - row[wholeColumns]) * columnShare;
        std::fill(row + wholeColumns + 1, row + m_fine.columns() + Plane::margin, 1.0F);
        if (y == wholeRows)
            for (int x = 0; x <= wholeColumns; ++x)
                row[x] = 1 - (1 - row[x]) * rowShare;
    }

    m_coarse.fill(m_coarsened, 0);
    float* __restrict const line = m_line.data() + Plane::margin;
    for (const QRect& part : m_coarsened.intersected(m_coarse.area(1))) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            const float* const before = m_fine.row(2 * y - 1);
            const float* const first = m_fine.row(2 * y);
            const float* const second = m_fine.row(2 * y + 1);
            const float* const after = m_fine.row(2 * y + 2);
            for (int x = 2 * part.left() - 1; x <= 2 * part.right() + 2; ++x)
                line[x] = 0.125F * (before[x] + after[x]) + 0.375F * (first[x] + second[x]);
            float* __restrict const out = m_coarse.row(y);
            for (int x = part.left(); x <= part.right(); ++x)
                out[x] = 1 - (0.125F * (line[2 * x - 1] + line[2 * x + 2]) +
                              0.375F * (line[2 * x] + line[2 * x + 1]));
        }
    }
}

/// Brings coarse samples to the pixels of a row, where a sample stands for that many whole pixels.
template <int pixels>
[[gnu::always_inline]] inline void NeuralNetworkRenderer::expandWhole(const Share* in, Share* __restrict out,
                                                                      int from, int to) const
{
    std::array<Tap, pixels> taps;
    std::copy_n(m_columnTaps.begin(), pixels, taps.begin());
    for (int x = from / pixels; x < (to + pixels - 1) / pixels; ++x) {
        for (int i = 0; i < pixels; ++i) {
            const auto& [first, weights] = taps[static_cast<std::size_t>(i)];
            const Share* const at = in + x + first;
            out[x * pixels + i] = between(at[0], at[1], at[2], at[3], weights);
        }
    }
}

/// Brings coarse samples to the pixels of a row, at any scale.
ARDEO_WIDE void NeuralNetworkRenderer::expand(const Share* in, Share* __restrict out, int from, int to) const
{
    if (m_scale == 1 && m_pixels.width() >= 2)
        return expandWhole<2>(in, out, from, to);
    if (m_scale == 2 && m_pixels.width() >= 4)
        return expandWhole<4>(in, out, from, to);
    for (int x = from; x < to; ++x) {
        const auto& [first, weights] = m_columnTaps[static_cast<std::size_t>(x)];
        const Share* const at = in + first;
        out[x] = between(at[0], at[1], at[2], at[3], weights);
    }
}

std::size_t NeuralNetworkRenderer::blockAt(int pixel) const
{
    return static_cast<std::size_t>((m_columnTaps[static_cast<std::size_t>(pixel)].first + Plane::margin) /
                                    dotBlock);
}

/// Brings a coarse row to the pixels of the picture's rows, from that pixel up to another one.
ARDEO_WIDE void NeuralNetworkRenderer::expandRow(int row, int from, int to)
{
    Share* const line = m_coarseShares.data() + Plane::margin;
    const auto tapAt = [this](int pixel) { return m_columnTaps[static_cast<std::size_t>(pixel)].first; };
    const auto blend = [&](SharePlane Composition::*plane, int begin, int end) {
        const Share* const before = (m_before.*plane).row(row);
        const Share* const after = (m_after.*plane).row(row);
        const auto [first, second] = m_weights;
        const int last = tapAt(end - 1) + 3;
        for (int x = tapAt(begin); x <= last; ++x)
            line[x] = static_cast<Share>(times(before[x], first) + times(after[x], second));
    };
    blend(&Composition::links, from, to);
    expand(line, expandedLinks(row), from, to);
    std::size_t block = blockAt(from);
    for (int begin = from; begin < to; ++block) {
        const int end = std::min(to, m_blockEnds[block]);
        const auto isMarked = [&](int above) { return dotMarks(row - above)[block] != 0; };
        if (isMarked(0) || isMarked(1) || isMarked(2) || isMarked(3)) {
            blend(&Composition::dots, begin, end);
            expand(line, expandedDots(row), begin, end);
        }
        begin = end;
    }
}

/// Brings the coarse planes to device pixels, by cubic splines.
ARDEO_WIDE QImage NeuralNetworkRenderer::picture(const QRect& pixels, ColorScheme scheme, QColor ground)
{
    const auto area = static_cast<std::size_t>(pixels.width()) * static_cast<std::size_t>(pixels.height());
    if (m_picture.size() < area)
        m_picture.resize(area);
    const std::array<Channel, 3> channels = channelsOf(scheme, ground);
    int expanded = m_rowTaps[static_cast<std::size_t>(pixels.top())].first;
    int taken = expanded - 1;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        const auto& [first, weights] = m_rowTaps[static_cast<std::size_t>(y)];
        for (; expanded <= first + 3; ++expanded)
            expandRow(expanded, pixels.left(), pixels.right() + 1);
        if (std::exchange(taken, first) != first) {
            m_runs.clear();
            std::size_t block = blockAt(pixels.left());
            for (int begin = pixels.left(); begin <= pixels.right(); begin = m_blockEnds[block++]) {
                const bool withDots = dotMarks(first)[block] != 0;
                if (m_runs.empty() || m_runs.back().withDots != withDots)
                    m_runs.push_back({m_blockEnds[block], withDots});
                m_runs.back().end = m_blockEnds[block];
            }
        }
        std::array<const Share*, 4> links;
        std::array<const Share*, 4> dots;
        for (int i = 0; i < 4; ++i) {
            links[static_cast<std::size_t>(i)] = expandedLinks(first + i);
            dots[static_cast<std::size_t>(i)] = expandedDots(first + i);
        }
        auto* const out = m_picture.data() + static_cast<std::ptrdiff_t>(y - pixels.top()) * pixels.width();
        int from = pixels.left();
        for (const auto& [end, withDots] : m_runs) {
            const int to = std::min(end, pixels.right() + 1);
            if (withDots)
                writeRow<true>(out, pixels.left(), from, to, links, dots, weights, channels);
            else
                writeRow<false>(out, pixels.left(), from, to, links, dots, weights, channels);
            from = std::max(from, to);
        }
    }
    return QImage(reinterpret_cast<const uchar*>(m_picture.data()), pixels.width(), pixels.height(),
                  4 * pixels.width(), QImage::Format_RGB32);
}

QImage NeuralNetworkRenderer::reduced(QSize size, ColorScheme scheme, QColor ground)
{
    const std::array<Channel, 3> channels = channelsOf(scheme, ground);
    QImage image(size, QImage::Format_RGB32);
    for (int row = 0; row < size.height(); ++row) {
        const int top = row * m_coarse.rows() / size.height();
        const int bottom = std::max(top + 1, (row + 1) * m_coarse.rows() / size.height());
        for (int column = 0; column < size.width(); ++column) {
            const int left = column * m_coarse.columns() / size.width();
            const int right = std::max(left + 1, (column + 1) * m_coarse.columns() / size.width());
            const auto average = [&](SharePlane Composition::*plane) {
                std::uint64_t sum = 0;
                for (int y = top; y < bottom; ++y) {
                    const Share* const before = (m_before.*plane).row(y);
                    const Share* const after = (m_after.*plane).row(y);
                    for (int x = left; x < right; ++x)
                        sum += times(before[x], m_weights[0]) + times(after[x], m_weights[1]);
                }
                return static_cast<Share>(sum / static_cast<std::uint64_t>((bottom - top) * (right - left)));
            };
            const Share link = average(&Composition::links);
            const Share dot = average(&Composition::dots);
            const auto mixed = [link, dot](const Channel& channel) {
                return static_cast<Share>(channel.ground + along(channel.link, link) +
                                          along(channel.dot, dot)) >>
                       8;
            };
            image.setPixel(column, row, qRgb(mixed(channels[0]), mixed(channels[1]), mixed(channels[2])));
        }
    }
    return image;
}

} // namespace ardeo
