#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QSize>

#include <array>

namespace zm {

/// Squares of `side` pixels over a picture, and the picture reduced to about `detail` pixels a square: what panes and
/// facets take their places and colours from. The same at every size of a picture, as far as its pixels allow.
class CellPicture
{
public:
    /// Red, green, blue and alpha, 0..1, premultiplied.
    using Color = std::array<float, 4>;

    CellPicture(const QImage &image, double side, int detail);

    /// Squares in x and y that touch the picture.
    QSize squares() const { return m_squares; }
    /// Of the reduced picture.
    QSize pixels() const { return m_reduced.size(); }

    /// The middle of a pixel of the reduced picture, in squares.
    QPointF place(int x, int y) const { return {(x + 0.5) * m_step.x(), (y + 0.5) * m_step.y()}; }
    /// A colour of the reduced picture; outside, the nearest.
    Color color(int x, int y) const;
    /// The same at a place in squares.
    Color colorAt(const QPointF &place) const;

private:
    QImage m_reduced;
    QSize m_squares;
    QPointF m_step; // from pixel to pixel of the reduced picture, in squares
};

/// The sum of the squared differences.
float squaredDistance(const CellPicture::Color &a, const CellPicture::Color &b);

/// A sum of colours that keeps how many there were.
struct ColorSum
{
    CellPicture::Color sum{};
    float weight = 0.0F;

    void add(const CellPicture::Color &color, float share = 1.0F);
    CellPicture::Color mean() const;
};

/// The colour without its alpha, opaque, as a texel; black where there is none.
QRgb opaqueTexel(const CellPicture::Color &color);

/// Two numbers in 0..1 for a square, the same for the same seed.
QPointF squareHash(int x, int y, quint32 seed);

} // namespace zm
