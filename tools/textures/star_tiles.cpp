#include "periodic_noise.h"
#include "random.h"
#include "tile.h"
#include "tiles.h"

namespace zm::textures {

namespace {

constexpr int kSize = 1024;

/// A point of light: a full core, and a halo that fades away.
void drawGlow(Tile &tile, QPointF center, double core, double strength, double halo)
{
    const double reach = core * 7.0 + 2.0;
    tile.around(center, reach, [&](float &value, double dx, double dy) {
        const double r = std::hypot(dx, dy) / core;
        const double fadeOut = 1.0 - smoothStep(0.5, 1.0, std::hypot(dx, dy) / reach);
        Tile::add(value, strength * (1.15 * std::exp(-0.7 * r * r) + halo * fadeOut / (1.0 + r * r)));
    });
}

/// A bright light through a lens: rays that thin out, a core, and a glow.
void drawSparkle(Tile &tile, QPointF center, double radius, int rays, double angle, double strength)
{
    const double width = 0.012 * radius + 0.75;
    for (int i = 0; i < rays; ++i) {
        const QPointF ahead = direction(angle + 2.0 * std::numbers::pi * i / rays);
        const double length = rays > 4 && i % 2 == 1 ? 0.55 * radius : radius;
        tile.along(
            center, center + length * ahead, 3.0 * width + 0.05 * radius, [&](float &value, double distance, double t) {
                const double thin = width * (1.0 - 0.8 * t) + 0.05 * radius * std::pow(1.0 - t, 6.0);
                Tile::raise(value, strength * std::exp(-distance * distance / (thin * thin)) * std::pow(1.0 - t, 1.3));
            });
    }
    drawGlow(tile, center, 0.075 * radius + 0.8, strength, 0.35);
}

/// A star with straight edges and rounded corners, as cut from paper.
void drawPaperStar(Tile &tile, QPointF center, double radius, double inner, int spikes, double angle, double strength)
{
    const double sector = std::numbers::pi / spikes;
    const double round = 0.07 * radius;
    const QPointF tip(radius - round, 0.0);
    const QPointF notch = (inner * radius - 0.4 * round) * direction(sector);
    const QPointF edge = notch - tip;
    tile.around(center, radius + 2.0, [&](float &value, double dx, double dy) {
        // Folded into half a spike, where the outline is one edge.
        const double theta = std::atan2(dy, dx) - angle;
        const double folded = std::abs(std::remainder(theta, 2.0 * sector));
        const QPointF p = std::hypot(dx, dy) * direction(folded) - tip;
        const double t = std::clamp(QPointF::dotProduct(p, edge) / QPointF::dotProduct(edge, edge), 0.0, 1.0);
        const QPointF offset = p - t * edge;
        const bool inside = edge.x() * p.y() - edge.y() * p.x() > 0.0;
        const double distance = std::hypot(offset.x(), offset.y()) * (inside ? -1.0 : 1.0);
        Tile::raise(value, strength * std::clamp(round - distance + 0.5, 0.0, 1.0));
    });
}

/// Four points with hollow sides, the typographer's sparkle.
void drawTwinkle(Tile &tile, QPointF center, double radius, double strength)
{
    constexpr int kSamples = 4; // a side; the points are too thin for a distance to tell their coverage
    tile.around(center, radius + 1.0, [&](float &value, double dx, double dy) {
        int hits = 0;
        for (int i = 0; i < kSamples * kSamples; ++i) {
            const double x = std::abs(dx + (i % kSamples + 0.5) / kSamples - 0.5) / (0.8 * radius);
            const double y = std::abs(dy + (i / kSamples + 0.5) / kSamples - 0.5) / radius;
            if (std::pow(x, 0.56) + std::pow(y, 0.56) < 1.0)
                ++hits;
        }
        Tile::raise(value, strength * hits / double(kSamples * kSamples));
    });
}

} // namespace

QImage drawStarfield()
{
    Random random(21);
    Tile tile(kSize);
    for (int i = 0; i < 1500; ++i) {
        const QPointF center(random.between(0.0, kSize), random.between(0.0, kSize));
        drawGlow(tile, center, random.skewed(0.7, 1.4, 2.0), random.skewed(0.25, 1.0, 1.4), 0.0);
    }
    for (const QPointF &center : evenPoints(260, kSize, random))
        drawGlow(tile, center, random.skewed(1.3, 3.2, 2.2), random.between(0.7, 1.0), 0.12);
    for (const QPointF &center : evenPoints(44, kSize, random))
        drawGlow(tile, center, random.skewed(2.8, 6.5, 2.0), 1.0, 0.4);
    return tile.toMask();
}

QImage drawSparkles()
{
    Random random(22);
    Tile tile(kSize);
    int i = 0;
    for (const QPointF &center : evenPoints(120, kSize, random)) {
        // The first points are the farthest apart: they get the large ones.
        const double radius = i < 14 ? random.between(75.0, 135.0)
            : i < 50                 ? random.between(30.0, 65.0)
                                     : random.between(9.0, 26.0);
        drawSparkle(tile, center, radius, i % 4 == 1 ? 8 : 4, 0.06 * random.bell(), random.between(0.8, 1.0));
        ++i;
    }
    for (const QPointF &center : evenPoints(420, kSize, random))
        drawGlow(tile, center, random.skewed(0.7, 2.2, 2.0), random.between(0.4, 1.0), 0.15);
    return tile.toMask();
}

QImage drawConfettiStars()
{
    Random random(23);
    Tile tile(kSize);
    int i = 0;
    for (const QPointF &center : evenPoints(170, kSize, random)) {
        // Where later points lie between earlier ones there is less room.
        const double radius = i < 45 ? random.between(24.0, 38.0) : random.between(8.0, 19.0);
        drawPaperStar(tile, center, radius, random.between(0.42, 0.5), 5, random.angle(), random.between(0.82, 1.0));
        ++i;
    }
    return tile.toMask();
}

QImage drawTwinkleClusters()
{
    Random random(24);
    Tile tile(kSize);
    for (const QPointF &center : evenPoints(26, kSize, random)) {
        const double radius = random.skewed(34.0, 70.0, 1.5);
        drawTwinkle(tile, center, radius, 1.0);
        const int followers = int(random.between(2.0, 5.0));
        for (int i = 0; i < followers; ++i) {
            // Between the points of the large one.
            const double angle = std::numbers::pi * (0.25 + 0.5 * i) + 0.22 * random.bell();
            const QPointF place = center + radius * random.between(0.68, 1.15) * direction(angle);
            if (random.chance(0.6))
                drawTwinkle(tile, place, radius * random.between(0.2, 0.42), random.between(0.85, 1.0));
            else
                drawGlow(tile, place, random.between(1.6, 3.4), 1.0, 0.0);
        }
    }
    for (const QPointF &center : evenPoints(150, kSize, random)) {
        if (random.chance(0.3))
            drawTwinkle(tile, center, random.between(6.0, 13.0), random.between(0.7, 1.0));
        else
            drawGlow(tile, center, random.between(0.9, 1.9), random.between(0.5, 1.0), 0.0);
    }
    return tile.toMask();
}

QImage drawMilkyWay()
{
    Random random(25);
    Tile tile(kSize);
    const PeriodicNoise warp(6, 6, 41);
    const PeriodicNoise clouds(9, 9, 42);
    const PeriodicNoise lanes(11, 11, 43);
    const auto density = [&](double x, double y) {
        const double u = x / kSize + 0.025 * warp.sum(x / kSize, y / kSize, 2);
        const double v = y / kSize + 0.025 * warp.sum(y / kSize + 0.37, x / kSize + 0.71, 2);
        const double cloud = smoothStep(-0.5, 0.95, clouds.sum(u, v, 7));
        const double lane = 1.0 - std::abs(lanes.sum(u, v, 5)); // dark dust where the noise changes its sign
        return cloud * (1.0 - 0.55 * smoothStep(0.45, 1.0, lane));
    };
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x)
            Tile::add(tile.at(x, y), 0.4 * std::pow(density(x + 0.5, y + 0.5), 1.7));
    }
    for (int i = 0; i < 42000; ++i) {
        const QPointF center(random.between(0.0, kSize), random.between(0.0, kSize));
        const double here = density(center.x(), center.y());
        if (random.chance(0.05 + 0.95 * here * here))
            drawGlow(tile, center, random.skewed(0.55, 1.3, 3.0), random.skewed(0.15, 1.0, 2.0), 0.0);
    }
    for (const QPointF &center : evenPoints(90, kSize, random))
        drawGlow(tile, center, random.skewed(1.2, 3.6, 2.5), random.between(0.7, 1.0), 0.25);
    return tile.toMask();
}

} // namespace zm::textures
