#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QRegion>
#include <QSizeF>

#include <array>
#include <cstdint>
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

/// Draws the network on opaque ground. Keeps what it has computed for the next frame, but no state: equal
/// arguments give equal pictures.
class NeuralNetworkRenderer
{
public:
    /// The distance, in points, is the one from which nodes are not linked any more.
    NeuralNetworkRenderer(double maxDist, double speed);
    /// Composes the frame of that time, in seconds since 1 January 2001 UTC, or what shows in a part of it,
    /// given in points. The size must not be empty.
    void compose(QSizeF size, double time, qreal devicePixelRatio, const QRegion& part);
    /// The pixels of a rectangle of that part, given in device pixels. They stay as they are until the next
    /// call.
    QImage picture(const QRect& pixels, ColorScheme scheme, QColor ground);
    /// All of the frame in a small size, each pixel the average of what it stands for.
    QImage reduced(QSize size, ColorScheme scheme, QColor ground);

private:
    /// A grid of samples with a margin all around, for what reaches over the edge.
    template <typename Sample>
    class Grid
    {
    public:
        static constexpr int margin = 6;
        void reshape(int columns, int rows);
        void fill(const QRegion& region, Sample value);
        Sample* row(int y) { return m_samples.data() + (y + margin) * m_stride + margin; }
        int columns() const { return m_columns; }
        int rows() const { return m_rows; }
        std::ptrdiff_t stride() const { return m_stride; }
        /// All samples, and so many of the margin.
        QRect area(int border) const;

    private:
        int m_columns = 0;
        int m_rows = 0;
        std::ptrdiff_t m_stride = 0;
        std::vector<Sample> m_samples;
    };
    using Plane = Grid<float>;
    using SharePlane = Grid<Share>;
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
    /// Blocks of coarse samples. Lines are drawn only where they can be seen in the end, and that is cheaper
    /// to tell for a block than for a step.
    class Blocks
    {
    public:
        /// The binary logarithm of a block's side.
        static constexpr int side = 2;
        void cover(const QRegion& region, QSize plane);
        bool contain(int column, int row) const { return m_marks[index(column, row)] != 0; }
        /// All blocks, in samples.
        const QRegion& region() const { return m_region; }

    private:
        std::size_t index(int column, int row) const
        {
            return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
                   static_cast<std::size_t>(column);
        }
        int m_columns = 0;
        QRegion m_region;
        std::vector<std::uint8_t> m_marks;
    };
    /// One half of a symmetric kernel, the middle first.
    using Kernel = std::array<float, 5>;
    static constexpr int kernelReach = 4;
    /// Four neighbouring coarse samples and their shares in one device pixel.
    struct Tap {
        int first;
        std::array<Share, 4> weights;
    };
    /// All that a frame shows, on the coarse grid: how much of each sample has the colour of the links, and
    /// how much that of the dots.
    struct Composition {
        double time = 0;
        QRegion region; // where it has been composed
        SharePlane links;
        SharePlane dots;
        std::vector<QRect> dotted;
        std::vector<std::uint8_t> dotBlocks;
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
                         const Blocks& blocks, int blockSide, Combine combine);
    void prepare(QSizeF size, double scale);
    void choose(const QRegion& part);
    bool composeAt(Composition& composition, double time);
    void findLinks(const std::vector<QPointF>& positions);
    void drawGlows(const std::vector<QPointF>& positions);
    void drawLines();
    void drawDots(Composition& composition, const std::vector<QPointF>& positions);
    void drawDotPixel(Composition& composition, int x, int y, float weight);
    template <typename Sample>
    void blur(Plane& plane, const Kernel& kernel, const QRegion& region, Grid<Sample>& result);
    void refine();
    void coarsen();
    float glowTransmittance(float squareDistance) const;
    template <int pixels>
    void expandWhole(const Share* in, Share* out, int from, int to) const;
    void expand(const Share* in, Share* out, int from, int to) const;
    std::size_t blockAt(int pixel) const;
    void expandRow(int row, int from, int to);
    /// The last four expanded rows are kept, by the two lowest bits of their number.
    Share* expandedLinks(int row) { return m_expanded.data() + (row & 3) * m_expandedStride; }
    Share* expandedDots(int row) { return m_expanded.data() + (4 + (row & 3)) * m_expandedStride; }
    const std::uint8_t* dotMarks(int row) const
    {
        return m_dotBlocks.data() + static_cast<std::size_t>(row + Plane::margin) * m_blockEnds.size();
    }

    const double m_maxDist;
    const double m_speed;
    const LineProfiles m_lineProfiles;
    const LineProfiles m_finestLineProfiles;
    const LineProfiles m_glowProfiles;
    const Kernel m_glowKernel;
    std::vector<float> m_nodeGlow;

    QSizeF m_size;
    QSize m_pixels;
    double m_scale = 0;
    double m_interval = 0;
    Kernel m_finalKernel{};
    std::array<std::array<float, 10>, 2> m_dotKernels{};
    std::vector<Tap> m_columnTaps;
    std::vector<Tap> m_rowTaps;
    std::vector<int> m_blockEnds;

    // What is asked for, and what each stage has to leave right for that, in coarse samples. The rest is as
    // it happens.
    QRegion m_part;
    QRegion m_blurred;
    QRegion m_coarsened;
    QRegion m_fineNeeded;
    QRegion m_glowing;
    Blocks m_lineBlocks;
    Blocks m_glowLineBlocks;

    std::vector<Link> m_links;
    Plane m_coarse;
    Plane m_scratch;
    Plane m_fine;
    Plane m_finest;
    bool m_needsFinest = false;
    std::vector<float> m_line;
    std::vector<Share> m_coarseShares;
    std::vector<Share> m_expanded;
    std::ptrdiff_t m_expandedStride = 0;
    Composition m_before;
    Composition m_after;
    std::array<Share, 2> m_weights{}; // of the two in this frame
    std::vector<std::uint8_t> m_dotBlocks;
    std::vector<Run> m_runs;
    std::vector<std::uint32_t> m_picture;
};

} // namespace ardeo
