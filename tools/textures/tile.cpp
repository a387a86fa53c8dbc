#include "tile.h"

#include "random.h"

namespace zm::textures {

namespace {

uchar byteOf(float value)
{
    return uchar(std::lround(std::clamp(value, 0.0f, 1.0f) * 255.0f));
}

} // namespace

void Tile::stroke(const QList<StrokePoint> &points)
{
    for (qsizetype i = 1; i < points.size(); ++i) {
        const StrokePoint &a = points[i - 1];
        const StrokePoint &b = points[i];
        along(a.position, b.position, std::max(a.halfWidth, b.halfWidth) + 0.75,
              [&](float &value, double distance, double t) {
                  const double halfWidth = std::lerp(a.halfWidth, b.halfWidth, t);
                  const double cover = std::clamp(halfWidth + 0.5 - distance, 0.0, 1.0);
                  raise(value, cover * std::lerp(a.strength, b.strength, t));
              });
    }
}

QImage Tile::toMask() const
{
    QImage image(m_size, m_size, QImage::Format_RGBA8888);
    image.fill(Qt::white);
    for (int y = 0; y < m_size; ++y) {
        uchar *line = image.scanLine(y);
        for (int x = 0; x < m_size; ++x)
            line[4 * x + 3] = byteOf(m_values[std::size_t(y) * std::size_t(m_size) + std::size_t(x)]);
    }
    return image;
}

QImage Tile::toGray() const
{
    QImage image(m_size, m_size, QImage::Format_Grayscale8);
    for (int y = 0; y < m_size; ++y) {
        uchar *line = image.scanLine(y);
        for (int x = 0; x < m_size; ++x)
            line[x] = byteOf(m_values[std::size_t(y) * std::size_t(m_size) + std::size_t(x)]);
    }
    return image;
}

QList<QPointF> evenPoints(int count, int size, Random &random)
{
    // Best candidate (Mitchell, "Spectrally Optimal Sampling for Distribution Ray Tracing", 1991): of some random
    // points the one that is farthest from all before it.
    const auto apart = [size](double a, double b) {
        const double d = std::abs(a - b);
        return std::min(d, size - d);
    };
    QList<QPointF> points;
    points.reserve(count);
    while (points.size() < count) {
        QPointF best;
        double bestDistance = -1.0;
        for (qsizetype i = 0; i < 12 + points.size(); ++i) {
            const QPointF candidate(random.between(0.0, size), random.between(0.0, size));
            double nearest = 1e9;
            for (const QPointF &point : points) {
                const double dx = apart(point.x(), candidate.x());
                const double dy = apart(point.y(), candidate.y());
                nearest = std::min(nearest, dx * dx + dy * dy);
            }
            if (nearest > bestDistance) {
                bestDistance = nearest;
                best = candidate;
            }
        }
        points.append(best);
    }
    return points;
}

} // namespace zm::textures
