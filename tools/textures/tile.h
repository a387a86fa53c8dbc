#pragma once

#include <QImage>
#include <QList>
#include <QPointF>

#include <algorithm>
#include <cmath>
#include <vector>

namespace zm::textures {

class Random;

/// A point of a stroke.
struct StrokePoint
{
    QPointF position;       // pixels; may lie outside the tile
    double halfWidth = 1.0; // pixels
    double strength = 1.0;  // 0 to 1
};

/// A square of values from 0 to 1 whose opposite edges meet: what is drawn over one edge comes in at the other.
class Tile
{
public:
    explicit Tile(int size)
        : m_size(size)
        , m_values(std::size_t(size) * std::size_t(size), 0.0f)
    {
    }

    int size() const { return m_size; }
    float &at(int x, int y)
    {
        return m_values[std::size_t(wrapped(y)) * std::size_t(m_size) + std::size_t(wrapped(x))];
    }
    std::vector<float> &values() { return m_values; }

    /// Calls visit(value, dx, dy) for each pixel around a point, with the offsets of its centre from the point.
    template<typename Visit>
    void around(QPointF center, double radius, Visit visit)
    {
        const int left = int(std::floor(center.x() - radius));
        const int top = int(std::floor(center.y() - radius));
        const int right = int(std::ceil(center.x() + radius));
        const int bottom = int(std::ceil(center.y() + radius));
        for (int y = top; y < bottom; ++y) {
            for (int x = left; x < right; ++x)
                visit(at(x, y), x + 0.5 - center.x(), y + 0.5 - center.y());
        }
    }

    /// Calls visit(value, distance, position) for each pixel within `reach` of a segment; position is 0 to 1 along it.
    template<typename Visit>
    void along(QPointF from, QPointF to, double reach, Visit visit)
    {
        const QPointF d = to - from;
        const double squared = std::max(QPointF::dotProduct(d, d), 1e-9);
        const auto [left, right] = std::minmax({from.x(), to.x()});
        const auto [top, bottom] = std::minmax({from.y(), to.y()});
        for (int y = int(std::floor(top - reach)); y < int(std::ceil(bottom + reach)); ++y) {
            for (int x = int(std::floor(left - reach)); x < int(std::ceil(right + reach)); ++x) {
                const QPointF p = QPointF(x + 0.5, y + 0.5) - from;
                const double t = std::clamp(QPointF::dotProduct(p, d) / squared, 0.0, 1.0);
                const QPointF offset = p - t * d;
                const double distance = std::hypot(offset.x(), offset.y());
                if (distance < reach)
                    visit(at(x, y), distance, t);
            }
        }
    }

    /// Draws a line of varying width over what is there; crossings do not add up.
    void stroke(const QList<StrokePoint> &points);

    /// Lays light over light: never beyond 1.
    static void add(float &value, double light)
    {
        value = float(1.0 - (1.0 - value) * (1.0 - std::clamp(light, 0.0, 1.0)));
    }
    static void raise(float &value, double least) { value = std::max(value, float(std::clamp(least, 0.0, 1.0))); }

    /// White, with the values as alpha (RGBA8888).
    QImage toMask() const;

    /// The values as grey.
    QImage toGray() const;

private:
    int wrapped(int i) const
    {
        const int rest = i % m_size;
        return rest < 0 ? rest + m_size : rest;
    }

    int m_size;
    std::vector<float> m_values;
};

/// Points all over a tile without clumps and without a pattern, also across the edges. The first ones alone are as
/// even.
QList<QPointF> evenPoints(int count, int size, Random &random);

} // namespace zm::textures
