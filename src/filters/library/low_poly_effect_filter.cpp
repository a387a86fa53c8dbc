#include "filters/craft/cell_picture.h"
#include "filters/library_filter.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr int kDetail = 10; // pixels a square when the picture is looked at
constexpr int kMargin = 1; // squares around the picture
constexpr double kFlatEdge = 2.5e-4; // the weight of chance against the edges of the picture
constexpr double kPullReach = 0.12; // how far from its chance place a point is pulled: twice the variance, squares
constexpr double kLengthCost = 4e-4; // what a long diagonal costs against colours that differ within a triangle
constexpr double kLeastArea = 0.12; // of two triangles, squares: smaller ones would be too steep for light
constexpr QPointF kLightFrom(0.5, 0.866);

double turn(const QPointF &a, const QPointF &b)
{
    return a.x() * b.y() - a.y() * b.x();
}

/// A triangle's colour, and how far the picture within differs from it.
struct Facet
{
    CellPicture::Color color{};
    double error = 0.0;
};

/// Points, triangles and their colours for one picture.
class FacetMap
{
public:
    FacetMap(const QImage &image, double side, quint32 seed)
        : m_picture(image, side, kDetail)
        , m_columns(m_picture.squares().width() + 2 * kMargin)
        , m_rows(m_picture.squares().height() + 2 * kMargin)
        , m_lightSeed(seed + 9)
    {
        placePoints(seed);
    }

    /// Three texels for each square, as low-poly-effect.frag reads them.
    QImage image() const
    {
        QImage map(m_columns * 3, m_rows, QImage::Format_RGBA8888);
        if (map.isNull())
            return map;
        for (int row = 0; row < m_rows; ++row) {
            for (int column = 0; column < m_columns; ++column)
                drawSquare(map, column, row);
        }
        return map;
    }

private:
    const QPointF &point(int column, int row) const
    {
        return m_points[size_t(std::min(row, m_rows - 1)) * size_t(m_columns)
                        + size_t(std::min(column, m_columns - 1))];
    }

    /// Where an edge of the picture runs near a point's chance place, the point lies on it.
    void placePoints(quint32 seed)
    {
        struct Pull
        {
            QPointF chance; // in squares, like the sum
            QPointF sum;
            double weight = kFlatEdge;
        };
        std::vector<Pull> pulls;
        pulls.reserve(size_t(m_columns) * size_t(m_rows));
        for (int row = 0; row < m_rows; ++row) {
            for (int column = 0; column < m_columns; ++column) {
                const QPointF chance = squareHash(column, row, seed) + QPointF(column - kMargin, row - kMargin);
                pulls.push_back({chance, kFlatEdge * chance});
            }
        }
        const QSize pixels = m_picture.pixels();
        for (int y = 0; y < pixels.height(); ++y) {
            for (int x = 0; x < pixels.width(); ++x) {
                const double edge = double(squaredDistance(m_picture.color(x + 1, y), m_picture.color(x - 1, y)))
                    + double(squaredDistance(m_picture.color(x, y + 1), m_picture.color(x, y - 1)));
                const QPointF place = m_picture.place(x, y);
                Pull &pull =
                    pulls[size_t(int(place.y()) + kMargin) * size_t(m_columns) + size_t(int(place.x()) + kMargin)];
                const QPointF away = place - pull.chance;
                const double weight = edge * edge * std::exp(-QPointF::dotProduct(away, away) / kPullReach);
                pull.sum += weight * place;
                pull.weight += weight;
            }
        }
        m_points.reserve(pulls.size());
        for (const Pull &pull : pulls)
            m_points.push_back(rounded(pull.sum / pull.weight, pull.chance));
    }

    /// To what a texel holds, clear of the sides of the square that `inside` lies in.
    static QPointF rounded(const QPointF &point, const QPointF &inside)
    {
        const auto along = [](double value, double within) {
            const double whole = std::floor(within);
            return whole + std::round(std::clamp(value - whole, 0.06, 0.94) * 255.0) / 255.0;
        };
        return {along(point.x(), inside.x()), along(point.y(), inside.y())};
    }

    Facet facet(const QPointF &a, const QPointF &b, const QPointF &c) const
    {
        constexpr int kDivisions = 6;
        std::array<CellPicture::Color, size_t(kDivisions) * kDivisions> colors;
        size_t count = 0;
        ColorSum all;
        for (int i = 0; i < kDivisions; ++i) {
            for (int j = 0; i + j < kDivisions; ++j) {
                const double u = (i + 1.0 / 3.0) / kDivisions;
                const double v = (j + 1.0 / 3.0) / kDivisions;
                const CellPicture::Color color = m_picture.colorAt(a + u * (b - a) + v * (c - a));
                all.add(color);
                colors[count++] = color;
            }
        }
        // What strays far from the mean counts less: a facet takes the colour of the greater part, not a mixture.
        const CellPicture::Color mean = all.mean();
        ColorSum main;
        double error = 0.0;
        for (size_t i = 0; i < count; ++i) {
            const float distance = squaredDistance(colors[i], mean);
            error += double(distance);
            main.add(colors[i], 1.0F / (0.02F + distance));
        }
        return {main.mean(), error / double(count) * std::abs(turn(b - a, c - a))};
    }

    /// The light on the plane through three points of chance heights, -1..1; each is given by its square.
    double lightOn(const QPoint &a, const QPoint &b, const QPoint &c) const
    {
        const auto height = [this](const QPoint &square) {
            return squareHash(square.x(), square.y(), m_lightSeed).x();
        };
        const QPointF ab = point(b.x(), b.y()) - point(a.x(), a.y());
        const QPointF ac = point(c.x(), c.y()) - point(a.x(), a.y());
        const double rise = height(b) - height(a);
        const double other = height(c) - height(a);
        const QPointF slope = QPointF(rise * ac.y() - other * ab.y(), other * ab.x() - rise * ac.x())
            / std::max(turn(ab, ac), kLeastArea);
        return std::clamp(QPointF::dotProduct(slope, kLightFrom), -1.0, 1.0);
    }

    void drawSquare(QImage &map, int column, int row) const
    {
        const QPointF &nw = point(column, row);
        const QPointF &ne = point(column + 1, row);
        const QPointF &sw = point(column, row + 1);
        const QPointF &se = point(column + 1, row + 1);
        // A diagonal outside a hollow quad is no choice.
        const bool fallingFits = turn(ne - nw, se - nw) > 0.0 && turn(se - nw, sw - nw) > 0.0;
        const bool risingFits = turn(ne - nw, sw - nw) > 0.0 && turn(se - ne, sw - ne) > 0.0;
        const Facet falling[] = {facet(nw, ne, se), facet(nw, se, sw)};
        const Facet rising[] = {facet(nw, ne, sw), facet(ne, se, sw)};
        const auto cost = [](const Facet(&facets)[2], const QPointF &diagonal) {
            return facets[0].error + facets[1].error + kLengthCost * QPointF::dotProduct(diagonal, diagonal);
        };
        const bool isFalling = fallingFits && (!risingFits || cost(falling, se - nw) <= cost(rising, sw - ne));
        const Facet(&chosen)[2] = isFalling ? falling : rising;

        const auto byte = [](double value, int whole) {
            return uchar(std::clamp(qRound((value - whole) * 255.0), 0, 255));
        };
        uchar *texel = map.scanLine(row) + qsizetype(column) * 12;
        texel[0] = byte(nw.x(), column - kMargin);
        texel[1] = byte(nw.y(), row - kMargin);
        texel[2] = isFalling ? 255 : 0;
        texel[3] = 255;
        const QPoint corners[] = {{column, row}, {column + 1, row}, {column + 1, row + 1}, {column, row + 1}};
        const double lights[] = {lightOn(corners[0], corners[1], corners[isFalling ? 2 : 3]),
                                 lightOn(corners[isFalling ? 0 : 1], corners[2], corners[3])};
        for (int i = 0; i < 2; ++i) {
            const QRgb color = opaqueTexel(chosen[i].color);
            texel[4 + 4 * i] = uchar(qRed(color));
            texel[5 + 4 * i] = uchar(qGreen(color));
            texel[6 + 4 * i] = uchar(qBlue(color));
            texel[7 + 4 * i] = byte(0.5 + 0.5 * lights[i], 0);
        }
    }

    CellPicture m_picture;
    int m_columns;
    int m_rows;
    quint32 m_lightSeed;
    std::vector<QPointF> m_points; // in squares, row by row, from the margin on
};

// The picture in triangles of one colour each.
class LowPolyEffectFilter final : public LibraryFilter
{
public:
    using LibraryFilter::LibraryFilter;

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSize size = request.size();
        const double side = std::max(request.diagonalPixels(u"facetSize"_s), 2.0);
        const double seed = request.number(u"seed"_s);
        LibraryUniformBlock block(u"low-poly-effect"_s);
        block.setSize("u_size"_L1, size);
        block.setFloat("u_facetSize"_L1, side);
        block.setFloat("u_variation"_L1, request.percent(u"variation"_s));
        block.setFloat("u_saturation"_L1, request.percent(u"saturation"_s));
        block.setFloat("u_edgeWidth"_L1, request.diagonalPixels(u"edgeWidth"_s));
        block.setColor("u_edgeColor"_L1, request.color(u"edgeColor"_s));

        PassChain chain;
        const PassChain::Picture map = chain.source(FacetMap(request.image, side, quint32(qRound(seed))).image());
        const PassChain::Picture stack =
            chain.stacked(chain.source(request.image), map, request.renderer->maximumTextureSize());
        return request.chained(chain, chain.libraryShader(block.shaderId(), size, {stack}, block.bytes()));
    }
};

} // namespace

ZM_LIBRARY_EFFECT(LowPolyEffect, LowPolyEffectFilter, u"low-poly-effect"_s)

} // namespace zm
