#include "ui/NeuralNetworkFrame.h"

#include <algorithm>
#include <cmath>
#include <numbers>
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

constexpr std::array<Share, 3> sharesOf(const std::array<float, 3>& colour)
{
    return {shareOf(colour[0]), shareOf(colour[1]), shareOf(colour[2])};
}

[[gnu::always_inline]] inline Share times(Share sample, Share share)
{
    return static_cast<Share>(static_cast<std::uint32_t>(sample) * share >> 16);
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

/// One row of the picture: down by the four expanded rows, then to 8 bits.
template <bool withDots>
[[gnu::always_inline]] inline void
writeRow(std::uint32_t* __restrict out, int from, int to, const std::array<const Share*, 4>& links,
         const std::array<const Share*, 4>& dots, const std::array<Share, 4>& weights, const Palette& palette)
{
    const auto [l0, l1, l2, l3] = links;
    const auto [d0, d1, d2, d3] = dots;
    const auto [lr, lg, lb] = sharesOf(palette.link);
    const auto [dr, dg, db] = sharesOf(palette.dot);
    for (int x = from; x < to; ++x) {
        const Share link = between(l0[x], l1[x], l2[x], l3[x], weights);
        auto alpha = static_cast<Share>(link + halfStep);
        auto red = static_cast<Share>(times(link, lr) + halfStep);
        auto green = static_cast<Share>(times(link, lg) + halfStep);
        auto blue = static_cast<Share>(times(link, lb) + halfStep);
        if constexpr (withDots) {
            const Share dot = between(d0[x], d1[x], d2[x], d3[x], weights);
            alpha = static_cast<Share>(alpha + dot);
            red = static_cast<Share>(red + times(dot, dr));
            green = static_cast<Share>(green + times(dot, dg));
            blue = static_cast<Share>(blue + times(dot, db));
        }
        const auto upper = static_cast<Share>((alpha & 0xFF00) | red >> 8);
        const auto lower = static_cast<Share>((green & 0xFF00) | blue >> 8);
        out[x] = static_cast<std::uint32_t>(upper) << 16 | lower;
    }
}

QRegion grown(const QRegion& region, int margin)
{
    QRegion result;
    for (const QRect& rect : region)
        result += rect.adjusted(-margin, -margin, margin, margin);
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
        positions.emplace_back(size.width() * (0.5 + 0.46 * std::sin(angle * node.xFreq + node.xPhase)),
                               size.height() * (0.5 + 0.47 * std::cos(angle * node.yFreq + node.yPhase)));
    }
    return positions;
}

void NeuralNetworkRenderer::Plane::reshape(int columns, int rows)
{
    m_columns = columns;
    m_rows = rows;
    m_stride = columns + 2 * margin;
    m_samples.resize(static_cast<std::size_t>(m_stride * (rows + 2 * margin)));
}

QRect NeuralNetworkRenderer::Plane::area(int border) const
{
    return QRect(0, 0, m_columns, m_rows).adjusted(-border, -border, border, border);
}

void NeuralNetworkRenderer::Plane::fill(float value)
{
    std::fill(m_samples.begin(), m_samples.end(), value);
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

NeuralNetworkRenderer::NeuralNetworkRenderer()
    : m_lineProfiles(lineCoverage, linkWidth)
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

QImage NeuralNetworkRenderer::render(QSizeF size, double time, ColorScheme scheme, double maxDist,
                                     double speed, qreal devicePixelRatio, const std::optional<QRegion>& part)
{
    const QSize pixels = (size * devicePixelRatio).toSize();
    if (pixels.isEmpty())
        return {};
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    if (pixels != m_pixels || devicePixelRatio != m_scale)
        prepare(pixels, devicePixelRatio);
    QRegion written;
    QRegion needed; // in coarse samples
    for (const QRect& rect : part.value_or(QRect(QPoint(), size.toSize() + QSize(1, 1)))) {
        const QRectF inPixels(QPointF(rect.topLeft()) * devicePixelRatio,
                              QSizeF(rect.size()) * devicePixelRatio);
        const QRect area = inPixels.toAlignedRect() & image.rect();
        if (area.isEmpty())
            continue;
        const auto first = [](const std::vector<Tap>& taps, int pixel) {
            return taps[static_cast<std::size_t>(pixel)].first;
        };
        written += area;
        needed += QRect(QPoint(first(m_columnTaps, area.left()), first(m_rowTaps, area.top())),
                        QPoint(first(m_columnTaps, area.right()) + 3, first(m_rowTaps, area.bottom()) + 3));
    }
    const QRegion blurred = grown(needed, kernelReach);
    const QRegion fine = grown(blurred, 1);
    const QRegion glowing = grown(fine, 1);
    const std::vector<QPointF> positions = nodePositions(size, time, speed);
    findLinks(positions, maxDist);
    drawGlows(positions, glowing);
    refine(fine);
    drawLines(fine);
    drawDots(positions, needed);
    coarsen(blurred);
    blur(m_coarse, m_finalKernel, needed);
    write(image, scheme, written);
    return image;
}

void NeuralNetworkRenderer::prepare(QSize pixels, double scale)
{
    m_pixels = pixels;
    m_scale = scale;
    const int columns = static_cast<int>(std::ceil(pixels.width() / scale / 2 - 1e-6));
    const int rows = static_cast<int>(std::ceil(pixels.height() / scale / 2 - 1e-6));
    m_coarse.reshape(columns, rows);
    m_scratch.reshape(columns, rows);
    m_dots.reshape(columns, rows);
    m_fine.reshape(2 * columns, 2 * rows);
    // Where lines overlap, it shows in their product how sharp their edges were before the blur.
    m_needsFinest = scale >= 1.5;
    m_finest.reshape(m_needsFinest ? 4 * columns : 0, m_needsFinest ? 4 * rows : 0);
    m_line.resize(static_cast<std::size_t>(m_fine.stride()));
    m_coarseShares.resize(static_cast<std::size_t>(m_coarse.stride()));
    m_expanded.resize(8 * static_cast<std::size_t>(std::ceil(2 * scale) * columns));

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

    m_columnTaps = tapsOf(pixels.width(), scale);
    m_rowTaps = tapsOf(pixels.height(), scale);
    m_blockEnds.assign(static_cast<std::size_t>((columns + 2 * Plane::margin) / dotBlock + 1), 0);
    for (std::size_t i = 0; i < m_columnTaps.size(); ++i)
        m_blockEnds[static_cast<std::size_t>((m_columnTaps[i].first + Plane::margin) / dotBlock)] =
            static_cast<int>(i) + 1;
    for (std::size_t i = 1; i < m_blockEnds.size(); ++i)
        m_blockEnds[i] = std::max(m_blockEnds[i], m_blockEnds[i - 1]);
    m_dotBlocks.resize(m_blockEnds.size() * static_cast<std::size_t>(rows + 2 * Plane::margin));
}

/// Steps along the main direction of a line, one sample at a time; the points count in samples of the plane.
template <typename Combine>
[[gnu::always_inline]] inline void NeuralNetworkRenderer::drawLine(Plane& plane, const LineProfiles& profiles,
                                                                   QPointF from, QPointF to, Combine combine)
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
    const int last = static_cast<int>(std::floor(to.x() + 0.5));
    for (int step = static_cast<int>(std::floor(from.x() + 0.5)); step <= last; ++step) {
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

/// Finds each pair of nodes that are linked, and the opacity of the link.
void NeuralNetworkRenderer::findLinks(const std::vector<QPointF>& positions, double maxDist)
{
    m_links.clear();
    for (std::size_t i = 0; i < positions.size(); ++i) {
        for (std::size_t j = i + 1; j < positions.size(); ++j) {
            const QPointF way = positions[j] - positions[i];
            const double distance = std::sqrt(QPointF::dotProduct(way, way));
            // Without length there is no line to see, nor a direction.
            if (distance < maxDist && distance > 0)
                m_links.push_back({positions[i], positions[j], (1 - distance / maxDist) * linkOpacity});
        }
    }
}

/// Leaves the transmittance of all glows in the coarse plane.
ARDEO_WIDE void NeuralNetworkRenderer::drawGlows(const std::vector<QPointF>& positions, const QRegion& region)
{
    // One blur for all links: their optical depths add up, and for one link depth and opacity are nearly the
    // same. What the depth has more is proportional to the square of the profile; the constant gives it on
    // the whole.
    const double peak = linkGlowWidth / std::sqrt(2 * std::numbers::pi * linkGlowVariance);
    const auto coarse = [](QPointF point) { return (point - QPointF(1, 1)) / 2; };
    m_coarse.fill(0);
    for (const auto& [from, to, opacity] : m_links) {
        const double depth = opacity * linkGlowOpacity * (1 + 0.35 * peak * opacity * linkGlowOpacity);
        drawLine(
            m_coarse, m_glowProfiles, coarse(from), coarse(to),
            [weight = static_cast<float>(depth)](float& sample, float share) { sample += weight * share; });
    }
    blur(m_coarse, m_glowKernel, region);
    for (const QRect& part : region.intersected(m_coarse.area(1))) {
        for (int y = part.top(); y <= part.bottom(); ++y) {
            float* const row = m_coarse.row(y);
            for (int x = part.left(); x <= part.right(); ++x)
                row[x] = transmittance(row[x]);
        }
    }
    for (const QPointF& position : positions) {
        const QPointF centre = coarse(position);
        constexpr double reach = nodeGlowReach / 2.0;
        const int left = std::max(-1, static_cast<int>(std::ceil(centre.x() - reach)));
        const int right = std::min(m_coarse.columns(), static_cast<int>(std::floor(centre.x() + reach)));
        const int top = std::max(-1, static_cast<int>(std::ceil(centre.y() - reach)));
        const int bottom = std::min(m_coarse.rows(), static_cast<int>(std::floor(centre.y() + reach)));
        for (int y = top; y <= bottom; ++y) {
            float* const row = m_coarse.row(y);
            const auto centreX = static_cast<float>(centre.x());
            const auto squareY = static_cast<float>(square(y - centre.y()));
            for (int x = left; x <= right; ++x) {
                const float way = static_cast<float>(x) - centreX;
                row[x] *= glowTransmittance((way * way + squareY) * static_cast<float>(coarseCell));
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
ARDEO_WIDE void NeuralNetworkRenderer::drawLines(const QRegion& region)
{
    Plane& plane = m_needsFinest ? m_finest : m_fine;
    const LineProfiles& profiles = m_needsFinest ? m_finestLineProfiles : m_lineProfiles;
    const double density = m_needsFinest ? 2 : 1;
    const QPointF half(0.5, 0.5);
    m_finest.fill(1);
    for (const auto& [from, to, opacity] : m_links) {
        drawLine(plane, profiles, from * density - half, to * density - half,
                 [weight = static_cast<float>(opacity)](float& sample, float share) {
                     sample -= sample * weight * share;
                 });
    }
    if (!m_needsFinest)
        return;
    for (const QRect& part : region.intersected(m_coarse.area(0))) {
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
ARDEO_WIDE void NeuralNetworkRenderer::drawDots(const std::vector<QPointF>& positions, const QRegion& region)
{
    m_dots.fill(0);
    std::fill(m_dotBlocks.begin(), m_dotBlocks.end(), std::uint8_t{0});
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
        if (!region.intersects(QRect(coarse - reach, coarse + reach)))
            continue;
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
                drawDotPixel(x, y, dots);
            }
        }
    }
}

/// Adds a pixel of dot colour to the plane of the dots, coarsened and blurred at once.
void NeuralNetworkRenderer::drawDotPixel(int x, int y, float weight)
{
    const auto& across = m_dotKernels[static_cast<std::size_t>(x % 2)];
    const auto& down = m_dotKernels[static_cast<std::size_t>(y % 2)];
    const int left = x / 2 - 5 + x % 2;
    const int top = y / 2 - 5 + y % 2;
    for (std::size_t j = 0; j < down.size(); ++j) {
        float* const row = m_dots.row(top + static_cast<int>(j)) + left;
        const float share = weight * down[j];
        for (std::size_t i = 0; i < across.size(); ++i)
            row[i] += share * across[i];
    }
    // Marked are the taps that read any of these samples.
    const int firstBlock = std::max(0, left - 3 + Plane::margin) / dotBlock;
    const int lastBlock = (left + 9 + Plane::margin) / dotBlock;
    const int blocks = static_cast<int>(m_blockEnds.size());
    for (int j = std::max(0, top - 3 + Plane::margin); j <= top + 9 + Plane::margin; ++j)
        std::fill_n(m_dotBlocks.begin() + j * blocks + firstBlock, lastBlock - firstBlock + 1,
                    std::uint8_t{1});
}

ARDEO_WIDE void NeuralNetworkRenderer::blur(Plane& plane, const Kernel& kernel, const QRegion& region)
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
            float* __restrict const out = plane.row(y);
            for (int x = part.left(); x <= part.right(); ++x)
                out[x] = k0 * in[x] + k1 * (in[x - next] + in[x + next]) +
                         k2 * (in[x - 2 * next] + in[x + 2 * next]) +
                         k3 * (in[x - 3 * next] + in[x + 3 * next]) +
                         k4 * (in[x - 4 * next] + in[x + 4 * next]);
        }
    }
}

/// Brings the coarse plane to the fine one, linearly.
ARDEO_WIDE void NeuralNetworkRenderer::refine(const QRegion& region)
{
    float* __restrict const line = m_line.data() + 1;
    for (const QRect& part : region.intersected(m_coarse.area(0))) {
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
ARDEO_WIDE void NeuralNetworkRenderer::coarsen(const QRegion& region)
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

    m_coarse.fill(0);
    float* __restrict const line = m_line.data() + Plane::margin;
    for (const QRect& part : region.intersected(m_coarse.area(1))) {
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

/// Brings the coarse planes to device pixels, by cubic splines.
ARDEO_WIDE void NeuralNetworkRenderer::write(QImage& image, ColorScheme scheme, const QRegion& region)
{
    const Palette& palette = scheme == ColorScheme::dark ? darkPalette : lightPalette;
    const std::size_t blocks = m_blockEnds.size();
    const auto stride = static_cast<std::ptrdiff_t>(m_expanded.size() / 8);
    const auto expandedLinks = [&](int row) { return m_expanded.data() + (row & 3) * stride; };
    const auto expandedDots = [&](int row) { return m_expanded.data() + (4 + (row & 3)) * stride; };
    const auto marks = [&](int row) {
        return m_dotBlocks.data() + static_cast<std::size_t>(row + Plane::margin) * blocks;
    };
    Share* const line = m_coarseShares.data() + Plane::margin;
    const auto takeLine = [&](const float* row) {
        for (int x = -Plane::margin; x < m_coarse.columns() + Plane::margin; ++x)
            line[x] = static_cast<Share>(std::max(row[x], 0.0F) * wholeSample);
    };
    int expanded = m_rowTaps.front().first;
    int taken = expanded - 1;
    for (const QRect* part = region.begin(); part != region.end();) {
        // Rectangles one beside the other share their rows.
        const QRect* const band = part;
        part =
            std::find_if(band, region.end(), [&](const QRect& other) { return other.top() > band->top(); });
        for (int y = band->top(); y <= band->bottom(); ++y) {
            const auto& [first, weights] = m_rowTaps[static_cast<std::size_t>(y)];
            for (expanded = std::max(expanded, first); expanded <= first + 3; ++expanded) {
                takeLine(m_coarse.row(expanded));
                expand(line, expandedLinks(expanded), 0, image.width());
                takeLine(m_dots.row(expanded));
                for (std::size_t block = 0; block < blocks; ++block) {
                    if (marks(expanded)[block] || marks(expanded - 1)[block] || marks(expanded - 2)[block] ||
                        marks(expanded - 3)[block])
                        expand(line, expandedDots(expanded), block == 0 ? 0 : m_blockEnds[block - 1],
                               m_blockEnds[block]);
                }
            }
            if (std::exchange(taken, first) != first) {
                m_runs.clear();
                for (std::size_t block = 0; block < blocks; ++block) {
                    const bool withDots = marks(first)[block] != 0;
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
            auto* const out = reinterpret_cast<std::uint32_t*>(image.scanLine(y));
            for (const QRect* rect = band; rect != part; ++rect) {
                int from = rect->left();
                for (const auto& [end, withDots] : m_runs) {
                    const int to = std::min(end, rect->right() + 1);
                    if (withDots)
                        writeRow<true>(out, from, to, links, dots, weights, palette);
                    else
                        writeRow<false>(out, from, to, links, dots, weights, palette);
                    from = std::max(from, to);
                }
            }
        }
    }
}

} // namespace ardeo
