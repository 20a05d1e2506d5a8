#pragma once

#include <QImage>
#include <QPointF>
#include <QRegion>
#include <QSizeF>

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace ardeo
{

/// The two ways the desktop can look.
enum class ColorScheme { light, dark };

/// A part of 1, in 65536ths: in 16 bits, twice as many are computed at once as in floating point.
using Share = std::uint16_t;

/// The curve of one node: angular frequencies in radians per scaled second, phases in radians.
struct NodeParam {
    double xFreq;
    double yFreq;
    double xPhase;
    double yPhase;
};

/// The nodes, in the order in which they are drawn.
std::span<const NodeParam> neuralNetworkNodes();

/// Where all nodes are in a canvas of that size.
std::vector<QPointF> nodePositions(QSizeF size, double time, double speed);

/// Draws the network. Keeps its memory between frames, but no state: equal arguments give equal frames.
class NeuralNetworkRenderer
{
public:
    NeuralNetworkRenderer();
    /// A frame on transparent ground; a null image for an empty size. The time counts in seconds since
    /// 1 January 2001 UTC. If only a part is asked for, given in points, the pixels of the rest mean nothing.
    QImage render(QSizeF size, double time, ColorScheme scheme, double maxDist, double speed,
                  qreal devicePixelRatio, const std::optional<QRegion>& part = std::nullopt);

private:
    /// A grid of samples with a margin all around, for what reaches over the edge.
    class Plane
    {
    public:
        static constexpr int margin = 6;
        void reshape(int columns, int rows);
        void fill(float value);
        float* row(int y) { return m_samples.data() + (y + margin) * m_stride + margin; }
        int columns() const { return m_columns; }
        int rows() const { return m_rows; }
        std::ptrdiff_t stride() const { return m_stride; }
        /// All samples, and so many of the margin.
        QRect area(int border) const;

    private:
        int m_columns = 0;
        int m_rows = 0;
        std::ptrdiff_t m_stride = 0;
        std::vector<float> m_samples;
    };
    /// What a straight line leaves in four neighbouring samples across its main direction, by the steepness
    /// of the line and by where it passes between the samples.
    class LineProfiles
    {
    public:
        using Samples = std::array<float, 4>;
        static constexpr int slopes = 32;
        static constexpr int phases = 64;
        template <typename Profile>
        LineProfiles(Profile profile, double width);
        const Samples* of(double slope) const;

    private:
        std::vector<Samples> m_samples;
    };
    /// One half of a symmetric kernel, the middle first.
    using Kernel = std::array<float, 5>;
    static constexpr int kernelReach = 4;
    /// Four neighbouring coarse samples and their shares in one device pixel.
    struct Tap {
        int first;
        std::array<Share, 4> weights;
    };
    struct Link {
        QPointF from;
        QPointF to;
        double opacity;
    };

    /// Neighbouring pixels of a row that are all near a dot, or all not.
    struct Run {
        int end;
        bool withDots;
    };

    static Kernel kernelOf(double variance);
    static std::vector<Tap> tapsOf(int pixels, double scale);
    template <typename Combine>
    static void drawLine(Plane& plane, const LineProfiles& profiles, QPointF from, QPointF to,
                         Combine combine);
    void prepare(QSize pixels, double scale);
    void findLinks(const std::vector<QPointF>& positions, double maxDist);
    // What follows leaves right values in a region, which counts in coarse samples; the rest is as it
    // happens.
    void drawGlows(const std::vector<QPointF>& positions, const QRegion& region);
    void drawLines(const QRegion& region);
    void drawDots(const std::vector<QPointF>& positions, const QRegion& region);
    void drawDotPixel(int x, int y, float weight);
    void blur(Plane& plane, const Kernel& kernel, const QRegion& region);
    void refine(const QRegion& region);
    void coarsen(const QRegion& region);
    float glowTransmittance(float squareDistance) const;
    template <int pixels>
    void expandWhole(const Share* in, Share* out, int from, int to) const;
    void expand(const Share* in, Share* out, int from, int to) const;
    void write(QImage& image, ColorScheme scheme, const QRegion& region);

    const LineProfiles m_lineProfiles;
    const LineProfiles m_finestLineProfiles;
    const LineProfiles m_glowProfiles;
    const Kernel m_glowKernel;
    std::vector<float> m_nodeGlow;

    QSize m_pixels;
    double m_scale = 0;
    Kernel m_finalKernel{};
    std::array<std::array<float, 10>, 2> m_dotKernels{};
    std::vector<Tap> m_columnTaps;
    std::vector<Tap> m_rowTaps;
    std::vector<int> m_blockEnds;

    std::vector<Link> m_links;
    Plane m_coarse;
    Plane m_scratch;
    Plane m_dots;
    Plane m_fine;
    Plane m_finest;
    bool m_needsFinest = false;
    std::vector<float> m_line;
    std::vector<Share> m_coarseShares;
    std::vector<Share> m_expanded;
    std::vector<std::uint8_t> m_dotBlocks;
    std::vector<Run> m_runs;
};

} // namespace ardeo
