#include "periodic_noise.h"
#include "random.h"
#include "tile.h"
#include "tiles.h"

namespace zm::textures {

namespace {

constexpr int kSize = 1024;

double radians(double degrees)
{
    return degrees * std::numbers::pi / 180.0;
}

struct ScratchShape
{
    double length = 100.0;   // pixels
    double halfWidth = 1.0;  // pixels, at the widest
    double strength = 1.0;   // 0 to 1
    double curvature = 0.0;  // radians from one end to the other
    double breaks = 0.0;     // 0: unbroken, 1: mostly gone
};

/// A line that begins and ends in points and whose depth wavers.
void drawScratch(Tile &tile, QPointF start, double angle, const ScratchShape &shape, Random &random)
{
    const int steps = std::max(6, int(shape.length / 6.0));
    const double phase = random.angle();
    const double waves = shape.length / random.between(40.0, 90.0);
    QList<StrokePoint> points;
    QPointF position = start;
    for (int i = 0; i <= steps; ++i) {
        const double t = double(i) / steps;
        const double taper = smoothStep(0.0, 0.25, t) * smoothStep(0.0, 0.4, 1.0 - t);
        const double waver =
            0.5 + 0.28 * std::sin(phase + 6.283 * waves * t) + 0.22 * std::sin(3.1 * phase + 17.0 * waves * t);
        const double depth = smoothStep(shape.breaks * 0.9 - 0.15, shape.breaks * 0.9 + 0.15, waver);
        points.append({position, shape.halfWidth * (0.25 + 0.75 * taper) * (0.75 + 0.25 * waver),
                       shape.strength * depth * (0.2 + 0.8 * taper)});
        position += direction(angle + shape.curvature * t) * (shape.length / steps);
    }
    tile.stroke(points);
}

/// A speck with a ragged outline.
void drawSpeck(Tile &tile, QPointF center, double radius, double strength, Random &random)
{
    const double stretch = random.between(0.6, 1.0);
    const double angle = random.angle();
    const double lobes[] = {0.22 * random.bell(), 0.16 * random.bell(), 0.1 * random.bell()};
    const double phases[] = {random.angle(), random.angle(), random.angle()};
    tile.around(center, radius * 1.8 + 2.0, [&](float &value, double dx, double dy) {
        const double along = dx * std::cos(angle) + dy * std::sin(angle);
        const double across = (dy * std::cos(angle) - dx * std::sin(angle)) / stretch;
        const double theta = std::atan2(across, along);
        double outline = 1.0;
        for (int i = 0; i < 3; ++i)
            outline += lobes[i] * std::cos((i + 2) * theta + phases[i]);
        Tile::raise(value, strength * std::clamp(radius * outline - std::hypot(along, across) + 0.5, 0.0, 1.0));
    });
}

/// A hair: its bend changes slowly, so that it curls.
void drawHair(Tile &tile, QPointF start, double length, double halfWidth, double strength, Random &random)
{
    const double step = 4.0;
    const int steps = int(length / step);
    double angle = random.angle();
    double bend = 0.02 * random.bell();
    QPointF position = start;
    QList<StrokePoint> points;
    for (int i = 0; i <= steps; ++i) {
        const double t = double(i) / steps;
        const double taper = smoothStep(0.0, 0.1, t) * smoothStep(0.0, 0.18, 1.0 - t);
        points.append({position, halfWidth * (0.4 + 0.6 * taper), strength * (0.45 + 0.55 * taper)});
        bend = 0.965 * bend + 0.016 * random.bell();
        angle += bend;
        position += step * direction(angle);
    }
    tile.stroke(points);
}

/// What a dry brush leaves behind on one pull: `length` by `width` pixels, in streaks that run dry towards its end.
void drawScrape(Tile &tile, QPointF center, double angle, double length, double width, double strength, Random &random)
{
    constexpr int kCells = 4096; // the pull sees a small part of the noise, so that it never repeats there
    const PeriodicNoise noise(kCells, kCells, std::uint32_t(random.between(0.0, 1e6)));
    const QPointF ahead = direction(angle);
    const double bow = 0.06 * length * random.bell();
    tile.around(center, 0.5 * std::hypot(length, width) + std::abs(bow) + 2.0, [&](float &value, double dx, double dy) {
        const double along = (dx * ahead.x() + dy * ahead.y()) / length + 0.5; // 0 to 1 within the pull
        if (along < 0.0 || along > 1.0)
            return;
        const double bent = dy * ahead.x() - dx * ahead.y() - bow * 4.0 * along * (1.0 - along);
        const double across = bent / width + 0.5;
        if (across < 0.0 || across > 1.0)
            return;
        const double pixelsAlong = along * length;
        const double bristle = noise.at((bent / 3.1 + 300.5) / kCells, (pixelsAlong / 260.0 + 700.5) / kCells);
        const double tuft = noise.at((bent / 11.0 + 900.5) / kCells, (pixelsAlong / 170.0 + 200.5) / kCells);
        const double skip = noise.at((bent / 2.6 + 500.5) / kCells, (pixelsAlong / 16.0 + 400.5) / kCells);
        const double rim = std::pow(std::abs(2.0 * across - 1.0), 4.0);
        const double touch = 1.0 - smoothStep(0.0, 0.1, along + 0.06 * tuft);
        const double dryness = 1.1 * std::pow(along, 1.6) + 0.55 * rim + 1.2 * touch;
        const double load = 0.42 + 0.75 * bristle + 0.55 * tuft + 0.35 * skip - dryness;
        Tile::raise(value, strength * smoothStep(-0.12, 0.2, load));
    });
}

} // namespace

QImage drawFineScratches()
{
    Random random(11);
    Tile tile(kSize);
    // Wear has a direction; the rest are accidents.
    for (const QPointF &start : evenPoints(430, kSize, random)) {
        const bool stray = random.chance(0.25);
        const double angle = stray ? random.angle() : radians(-62.0 + 13.0 * random.bell());
        drawScratch(tile, start, angle,
                    {random.skewed(50.0, 420.0, 1.8), random.skewed(0.55, 1.7, 3.0), random.between(0.35, 1.0),
                     0.1 * random.bell(), random.between(0.0, 0.3)},
                    random);
    }
    for (const QPointF &start : evenPoints(260, kSize, random)) // nicks
        drawScratch(tile, start, random.angle(),
                    {random.between(8.0, 26.0), random.between(0.6, 1.3), random.between(0.4, 0.9)}, random);
    return tile.toMask();
}

QImage drawHairsAndDust()
{
    Random random(12);
    Tile tile(kSize);
    for (const QPointF &start : evenPoints(46, kSize, random))
        drawHair(tile, start, random.skewed(70.0, 340.0, 1.6), random.between(0.75, 1.35), random.between(0.65, 1.0),
                 random);
    for (const QPointF &start : evenPoints(110, kSize, random)) // lint
        drawHair(tile, start, random.between(14.0, 50.0), random.between(0.6, 1.1), random.between(0.4, 0.9), random);
    for (const QPointF &center : evenPoints(700, kSize, random))
        drawSpeck(tile, center, random.skewed(0.6, 4.6, 5.0), random.between(0.45, 1.0), random);
    return tile.toMask();
}

QImage drawBrushScrapes()
{
    Random random(13);
    Tile tile(kSize);
    for (const QPointF &center : evenPoints(44, kSize, random)) {
        const double angle = radians(-24.0 + 14.0 * random.bell() + (random.chance(0.15) ? 80.0 : 0.0));
        drawScrape(tile, center, angle + (random.chance(0.4) ? std::numbers::pi : 0.0), random.between(170.0, 420.0),
                   random.skewed(14.0, 74.0, 1.5), random.between(0.75, 1.0), random);
    }
    return tile.toMask();
}

QImage drawCrossScratches()
{
    Random random(14);
    Tile tile(kSize);
    // Each pass of the wool leaves a sheaf of nearly parallel arcs.
    for (const QPointF &center : evenPoints(125, kSize, random)) {
        const double angle = random.angle();
        const double curvature = 0.22 * random.bell();
        const double spread = random.between(16.0, 85.0);
        const int count = int(random.between(4.0, 13.0));
        for (int i = 0; i < count; ++i) {
            const double length = random.skewed(45.0, 330.0, 1.7);
            const QPointF aside = direction(angle + std::numbers::pi / 2.0) * spread * random.bell();
            const QPointF start = center + aside - direction(angle) * length * random.between(0.3, 0.7);
            drawScratch(
                tile, start, angle + 0.09 * random.bell(),
                {length, random.skewed(0.55, 1.4, 2.5), random.between(0.35, 1.0), curvature, random.between(0.0, 0.4)},
                random);
        }
    }
    return tile.toMask();
}

QImage drawWornFilm()
{
    Random random(15);
    Tile tile(kSize);
    // Running scratches: they pass through the whole tile and meet themselves at its edge.
    for (int i = 0; i < 9; ++i) {
        const double x = kSize * (i + random.between(-0.2, 1.2)) / 9.0;
        const PeriodicNoise sway(3, 1, std::uint32_t(100 + i));
        const PeriodicNoise depth(int(random.between(5.0, 14.0)), 1, std::uint32_t(200 + i));
        const double halfWidth = random.skewed(0.5, 1.5, 2.0);
        const double threshold = random.between(-0.35, 0.2);
        QList<StrokePoint> points;
        for (int y = 0; y <= kSize; y += 4) {
            const double t = double(y) / kSize;
            const double strength = smoothStep(threshold - 0.2, threshold + 0.3, depth.sum(t, 0.25, 3));
            points.append(
                {{x + 5.0 * sway.sum(t, 0.25, 3), double(y)}, halfWidth * (0.6 + 0.4 * strength), 0.9 * strength});
        }
        tile.stroke(points);
    }
    for (const QPointF &start : evenPoints(120, kSize, random))
        drawScratch(tile, start, radians(90.0 + 3.0 * random.bell()),
                    {random.skewed(25.0, 260.0, 2.0), random.between(0.5, 1.1), random.between(0.3, 0.85),
                     0.02 * random.bell(), random.between(0.0, 0.5)},
                    random);
    for (const QPointF &center : evenPoints(420, kSize, random))
        drawSpeck(tile, center, random.skewed(0.6, 4.0, 5.0), random.between(0.4, 1.0), random);
    for (const QPointF &start : evenPoints(14, kSize, random))
        drawHair(tile, start, random.between(40.0, 130.0), random.between(0.7, 1.2), random.between(0.6, 0.9), random);

    // Where the emulsion has come off, in chips of all sizes.
    const PeriodicNoise regions(12, 12, 31);
    const PeriodicNoise chips(40, 36, 32);
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const double u = (x + 0.5) / kSize;
            const double v = (y + 0.5) / kSize;
            const double threshold = 0.8 - 0.36 * smoothStep(-0.1, 0.75, regions.sum(u, v, 2));
            Tile::raise(tile.at(x, y), 0.85 * smoothStep(threshold, threshold + 0.06, chips.sum(u, v, 5)));
        }
    }
    return tile.toMask();
}

} // namespace zm::textures
