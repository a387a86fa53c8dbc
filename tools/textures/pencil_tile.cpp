#include "periodic_noise.h"
#include "random.h"
#include "tile.h"
#include "tiles.h"

#include <numeric>

namespace zm::textures {

namespace {

constexpr int kSize = 1024;
constexpr int kStrokes = 9000; // together they cover the tile three times

/// Replaces every value by its rank, so that each grey is equally frequent: a tone of 30 % then has 30 % of graphite.
void spreadEvenly(std::vector<float> &values)
{
    std::vector<std::uint32_t> order(values.size());
    std::iota(order.begin(), order.end(), 0u);
    std::stable_sort(order.begin(), order.end(),
                     [&](std::uint32_t a, std::uint32_t b) { return values[a] < values[b]; });
    for (std::size_t rank = 0; rank < order.size(); ++rank)
        values[order[rank]] = float(double(rank) / double(order.size() - 1));
}

/// Blurred white noise with a deviation of about 1: grains of two to three pixels without a grid.
std::vector<float> paperTooth(Random &random)
{
    Tile grain(kSize);
    for (float &value : grain.values())
        value = float(random.bell());
    for (int pass = 0; pass < 2; ++pass) {
        Tile blurred(kSize);
        for (int y = 0; y < kSize; ++y) {
            for (int x = 0; x < kSize; ++x) {
                float sum = 0.0f;
                for (int dy = -1; dy <= 1; ++dy) {
                    for (int dx = -1; dx <= 1; ++dx)
                        sum += grain.at(x + dx, y + dy) * float((2 - std::abs(dx)) * (2 - std::abs(dy)));
                }
                blurred.at(x, y) = sum / 16.0f;
            }
        }
        grain = blurred;
    }
    for (float &value : grain.values())
        value *= 5.2f; // what the two blurs take from a deviation of 0.7
    return grain.values();
}

} // namespace

QImage drawGraphiteHatching()
{
    Random random(71);
    Tile tile(kSize);
    std::fill(tile.values().begin(), tile.values().end(), 1.4f);

    // Each stroke belongs to a tone. It lowers its pixels to that tone, least at its flanks and where it is lifted off.
    for (int i = 0; i < kStrokes; ++i) {
        const double tone = double(i) / kStrokes;
        // The additive recurrence of the plastic number covers the square evenly with any number of points.
        const QPointF center(kSize * std::fmod(0.5 + 0.7548776662466927 * i, 1.0) + 14.0 * random.bell(),
                             kSize * std::fmod(0.5 + 0.5698402909980532 * i, 1.0) + 14.0 * random.bell());
        const double angle = (-58.0 + 4.5 * random.bell()) * std::numbers::pi / 180.0;
        const double length = random.between(80.0, 210.0);
        const double bow = 0.035 * length * random.bell();
        const double halfWidth = random.between(1.1, 2.3);
        const double lift = random.between(0.15, 0.4);
        const QPointF ahead = direction(angle);
        const QPointF aside(-ahead.y(), ahead.x());
        constexpr int kPieces = 8;
        const auto pointAt = [&](double t) {
            return center + (t - 0.5) * length * ahead + bow * (1.0 - 4.0 * (t - 0.5) * (t - 0.5)) * aside;
        };
        for (int piece = 0; piece < kPieces; ++piece) {
            const double from = double(piece) / kPieces;
            tile.along(pointAt(from), pointAt(from + 1.0 / kPieces), 2.0 * halfWidth,
                       [&](float &value, double distance, double t) {
                           const double along = from + t / kPieces;
                           const double flank = distance / halfWidth;
                           const double ends =
                               0.35 * (1.0 - smoothStep(0.0, 0.12, along)) + 0.5 * smoothStep(1.0 - lift, 1.0, along);
                           value = std::min(value, float(tone + 0.1 * flank * flank + ends));
                       });
        }
    }

    // The tooth of the paper keeps graphite off its hollows.
    const std::vector<float> tooth = paperTooth(random);
    const PeriodicNoise pulp(28, 28, 9);
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const double uneven = 0.03 * pulp.sum((x + 0.5) / kSize, (y + 0.5) / kSize, 3);
            tile.at(x, y) += float(0.05 * tooth[std::size_t(y * kSize + x)] + uneven);
        }
    }
    spreadEvenly(tile.values());
    return tile.toGray();
}

} // namespace zm::textures
