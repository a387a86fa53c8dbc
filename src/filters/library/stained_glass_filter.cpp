#include "filters/craft/cell_picture.h"
#include "filters/library_filter.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr int kDetail = 8; // pixels a square when the picture is looked at
constexpr int kMargin = 3; // squares around the picture
constexpr int kRounds = 4;
constexpr double kColorReach = 2.5; // how far, in squares, a colour as far as black from white puts a place

/// Panes that follow what the picture shows: superpixels (Achanta et al., "SLIC Superpixels Compared to
/// State-of-the-Art Superpixel Methods", 2012) whose centres stay in their squares.
class PaneMap
{
public:
    PaneMap(const QImage &image, double side, quint32 seed)
        : m_picture(image, side, kDetail)
        , m_columns(m_picture.squares().width() + 2 * kMargin)
        , m_rows(m_picture.squares().height() + 2 * kMargin)
    {
        for (int row = 0; row < m_rows; ++row) {
            for (int column = 0; column < m_columns; ++column) {
                const QPointF chance = squareHash(column, row, seed) * 0.9 + QPointF(0.05, 0.05);
                const QPointF point(column - kMargin + chance.x(), row - kMargin + chance.y());
                m_panes.push_back({point, m_picture.colorAt(point)});
            }
        }
        for (int round = 0; round < kRounds; ++round)
            gather(true);
        // The shader draws the cells of the points alone: their colours are what these cells hold.
        for (Pane &pane : m_panes)
            pane.point = rounded(pane.point);
        gather(false);
    }

    /// Two texels for each square, as stained-glass.frag reads them.
    QImage image() const
    {
        QImage map(m_columns * 2, m_rows, QImage::Format_RGBA8888);
        if (map.isNull())
            return map;
        for (int row = 0; row < m_rows; ++row) {
            uchar *texel = map.scanLine(row);
            for (int column = 0; column < m_columns; ++column) {
                const Pane &pane = m_panes[size_t(row) * size_t(m_columns) + size_t(column)];
                const QRgb color = opaqueTexel(pane.color);
                *texel++ = uchar(qRound((pane.point.x() - std::floor(pane.point.x())) * 255.0));
                *texel++ = uchar(qRound((pane.point.y() - std::floor(pane.point.y())) * 255.0));
                *texel++ = 0;
                *texel++ = 255;
                *texel++ = uchar(qRed(color));
                *texel++ = uchar(qGreen(color));
                *texel++ = uchar(qBlue(color));
                *texel++ = 255;
            }
        }
        return map;
    }

private:
    struct Pane
    {
        QPointF point; // in squares
        CellPicture::Color color{};
    };

    /// To what a texel holds, clear of the sides of the square.
    static QPointF rounded(const QPointF &point)
    {
        const auto along = [](double value) {
            const double whole = std::floor(value);
            return whole + std::round(std::clamp(value - whole, 0.04, 0.96) * 255.0) / 255.0;
        };
        return {along(point.x()), along(point.y())};
    }

    /// Gives each pixel to the nearest pane, in place and, if asked, in colour, and each pane what it got.
    void gather(bool byColor)
    {
        struct Share
        {
            ColorSum color;
            QPointF place;
        };
        std::vector<Share> shares(m_panes.size());
        const QSize pixels = m_picture.pixels();
        for (int y = 0; y < pixels.height(); ++y) {
            for (int x = 0; x < pixels.width(); ++x) {
                const QPointF place = m_picture.place(x, y);
                const CellPicture::Color color = m_picture.color(x, y);
                Share &share = shares[nearestPane(place, color, byColor)];
                share.color.add(color);
                share.place += place;
            }
        }
        for (size_t i = 0; i < m_panes.size(); ++i) {
            const Share &share = shares[i];
            if (share.color.weight <= 0.0F)
                continue;
            m_panes[i].color = share.color.mean();
            if (byColor)
                m_panes[i].point = inSquare(share.place / double(share.color.weight), int(i));
        }
    }

    QPointF inSquare(const QPointF &point, int index) const
    {
        const int column = index % m_columns - kMargin;
        const int row = index / m_columns - kMargin;
        return {std::clamp(point.x(), column + 0.04, column + 0.96), std::clamp(point.y(), row + 0.04, row + 0.96)};
    }

    size_t nearestPane(const QPointF &place, const CellPicture::Color &color, bool byColor) const
    {
        const int column = int(place.x()) + kMargin;
        const int row = int(place.y()) + kMargin;
        size_t nearest = 0;
        double least = 1e9;
        for (int y = row - 1; y <= row + 1; ++y) {
            for (int x = column - 1; x <= column + 1; ++x) {
                const size_t index = size_t(y) * size_t(m_columns) + size_t(x);
                const Pane &pane = m_panes[index];
                const QPointF to = pane.point - place;
                double distance = QPointF::dotProduct(to, to);
                if (byColor)
                    distance += kColorReach * kColorReach * double(squaredDistance(pane.color, color));
                if (distance < least) {
                    least = distance;
                    nearest = index;
                }
            }
        }
        return nearest;
    }

    CellPicture m_picture;
    int m_columns;
    int m_rows;
    std::vector<Pane> m_panes; // row by row, from the margin on
};

// A leaded window.
class StainedGlassFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSize size = request.size();
        const double side = std::max(request.diagonalPixels(u"paneSize"_s), 2.0);
        const double seed = request.number(u"seed"_s);
        LibraryUniformBlock block(u"stained-glass"_s);
        block.setSize("u_size"_L1, size);
        block.setFloat("u_paneSize"_L1, side);
        block.setFloat("u_colorLevels"_L1, request.number(u"colorLevels"_s));
        block.setFloat("u_saturation"_L1, request.percent(u"saturation"_s));
        block.setFloat("u_seamWidth"_L1, request.diagonalPixels(u"seamWidth"_s));
        block.setColor("u_leadColor"_L1, request.color(u"leadColor"_s));
        block.setFloat("u_shine"_L1, request.percent(u"shine"_s));
        block.setFloat("u_refraction"_L1, request.percent(u"refraction"_s));
        block.setFloat("u_translucency"_L1, request.percent(u"translucency"_s));
        block.setFloat("u_seed"_L1, seed);

        PassChain chain;
        const PassChain::Picture map = chain.source(PaneMap(request.image, side, quint32(qRound(seed))).image());
        const PassChain::Picture stack =
            chain.stacked(chain.source(request.image), map, request.renderer->maximumTextureSize());
        return request.chained(chain, chain.libraryShader(block.shaderId(), size, {stack}, block.bytes()));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(StainedGlass, StainedGlassFilter, u"stained-glass"_s)

} // namespace zm
