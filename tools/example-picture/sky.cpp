// The sky, its clouds, and the mountains in their haze.
#include "example-picture/noise.h"
#include "example-picture/scene.h"

namespace zm::example {

namespace {

constexpr Light warm{1.75f, 0.80f, 0.28f};

double sunDistance(double x, double y)
{
    return std::hypot(x - sunX, (y - sunY) * 1.15) / pictureWidth;
}

Light clearSky(double x, double y)
{
    const double height = std::clamp((horizon - y) / (horizon + 220.0), 0.0, 1.0);
    Light sky = mix(Light{0.52f, 0.42f, 0.38f}, Light{0.22f, 0.38f, 0.50f}, smoothStep(0.0, 0.26, height));
    sky = mix(sky, Light{0.022f, 0.120f, 0.27f}, smoothStep(0.10, 0.72, height));
    const double away = sunDistance(x, y);
    sky = sky + Light{1.25f, 0.50f, 0.12f} * (0.62 * std::exp(-away * 4.6));
    sky = sky + Light{1.7f, 0.98f, 0.38f} * (1.25 * std::exp(-away * 15.0));
    return sky + Light{40.0f, 32.0f, 19.0f} * (1.0 - smoothStep(0.0085, 0.0115, away));
}

/// The thickness of the heaped clouds, 0 to 1, as seen at a place: a flat field of them, high above.
double cloudAt(double x, double y)
{
    const double down = 9000.0 / (horizon + 62.0 - y);
    const double fieldX = (x - 700.0) / 1600.0 * down * 0.24;
    const double fieldY = down * 0.34;
    const double bend = clouded(fieldX * 0.8, fieldY * 0.8, 3, 71);
    const double heap = clouded(fieldX + bend * 0.7, fieldY + bend * 0.5, 7, 17);
    return smoothStep(-0.04, 0.40, heap + 0.11 * noise(fieldX * 0.23, fieldY * 0.23, 5));
}

double cirrusAt(double x, double y)
{
    const double down = 9000.0 / (horizon + 150.0 - y);
    const double along = (x + 0.45 * y) / 1600.0 * down * 0.10;
    const double across = down * 0.34 + x * 0.0012;
    const double bend = clouded(along, across, 3, 8);
    return smoothStep(0.0, 0.85, 0.25 + clouded(along * 0.9 + bend, across * 3.5 + 2.0 * bend, 6, 31));
}

Light skyAt(double x, double y)
{
    Light sky = clearSky(x, y);
    const double glow = sunGlow(x, y);
    const double high = smoothStep(40.0, 260.0, horizon - y);
    sky = mix(sky, Light{0.56f, 0.56f, 0.54f} + warm * (1.0 * glow), 0.40 * high * cirrusAt(x, y));

    const double cloud = cloudAt(x, y) * smoothStep(6.0, 120.0, horizon - y);
    if (cloud > 0.0) {
        const double reach = 26.0;
        const double length = std::hypot(sunX - x, sunY - y) + 1.0;
        const double toSunX = (sunX - x) / length;
        const double toSunY = (sunY - y) / length;
        const double between = 0.6 * cloudAt(x + toSunX * reach * 0.4, y + toSunY * reach * 0.4)
            + 0.4 * cloudAt(x + toSunX * reach, y + toSunY * reach);
        const double lit = std::exp(-1.9 * between) + 0.35 * std::clamp(cloud - between, 0.0, 1.0);
        const Light shade = mix(Light{0.14f, 0.18f, 0.25f}, Light{0.50f, 0.28f, 0.20f}, std::min(1.0, glow * 1.4));
        const Light bright = Light{1.02f, 0.70f, 0.47f} + warm * (2.6 * glow * glow);
        sky = mix(sky, mix(shade, bright, std::clamp(lit * 1.25 - 0.12, 0.0, 1.0)), std::min(1.0, 1.25 * cloud));
    }
    return sky;
}

struct Range
{
    double foot;
    double height; ///< of its crests above the foot, pixels
    double scale; ///< width of a mountain, pixels
    double hazeShare;
    double snow; ///< height from which snow lies, as a part of the height
    Light ground;
    std::uint32_t seed;
};

const Range ranges[] = {
    {450, 205, 620, 0.66, 0.36, {0.20f, 0.21f, 0.25f}, 11},
    {452, 132, 430, 0.56, 0.85, {0.13f, 0.15f, 0.16f}, 23},
    {454, 88, 380, 0.42, 2.0, {0.075f, 0.105f, 0.085f}, 41},
    {456, 58, 300, 0.28, 2.0, {0.045f, 0.075f, 0.05f}, 57},
};

double crestOf(const Range &range, double x)
{
    const double along = x / range.scale + range.seed;
    const double shape =
        0.72 * ridged(along, 0.37, 7, range.seed) + 0.45 * clouded(along * 0.7, 9.0, 2, range.seed + 9);
    // The main peak stands left of the sun, and the land opens below the sun.
    const double peak =
        std::exp(-std::pow((x - 560.0) / 300.0, 2)) * 0.36 - std::exp(-std::pow((x - sunX - 60.0) / 260.0, 2)) * 0.22;
    return range.foot - range.height * std::max(0.05, 0.28 + shape + peak);
}

Light rangeAt(const Range &range, double x, double y, double crest)
{
    const double u = x / range.scale * 2.2 + range.seed;
    const double v = (y - 0.35 * crest) / range.scale * 3.6;
    const double step = 0.012;
    const auto ground = [&](double a, double b) {
        return ridged(a + 0.2 * noise(a * 2, b * 2, 3), b * 0.8, 7, range.seed + 100);
    };
    const double here = ground(u, v);
    const double side = sunX > x ? 1.0 : -1.0;
    const double slope = (here - ground(u + step * side, v)) / step * 0.30 + (here - ground(u, v - step)) / step * 0.14;
    const double lit = smoothStep(-0.5, 1.1, slope);
    const double up = (range.foot - y) / range.height;
    const double snow = smoothStep(-0.10, 0.10, up - range.snow - 0.25 * (1.0 - 1.6 * here) + 0.12 * slope);
    const Light rock = mix(range.ground, range.ground * 1.9, here);
    const Light surface = mix(rock, Light{0.80f, 0.82f, 0.88f}, snow);
    const Light colour = surface * (Light{0.30f, 0.36f, 0.50f} + Light{1.35f, 0.95f, 0.58f} * lit);
    // Mist gathers in the valleys.
    const double mist = 0.55 * std::pow(1.0 - std::clamp((range.foot - y) / (range.height * 0.9), 0.0, 1.0), 2.0)
        * (0.75 + 0.5 * clouded(x / 260.0, y / 45.0, 4, range.seed + 200));
    const double share = std::clamp(range.hazeShare + (1.0 - range.hazeShare) * mist, 0.0, 1.0);
    return mix(colour, haze(x, y), share);
}

} // namespace

double sunGlow(double x, double y)
{
    return std::exp(-sunDistance(x, y) * 5.5);
}

Light haze(double x, double y)
{
    const double near = sunGlow(x, y);
    return Light{0.20f, 0.33f, 0.42f} * (1.0 - 0.4 * near) + Light{1.60f, 0.74f, 0.26f} * (0.90 * near);
}

void paintSky(Scene &scene)
{
    scene.view.fill(-scene.view.above(), pictureHeight,
                    [](int x, int y) { return skyAt(x, std::min(double(y), horizon)); });
}

void paintMountains(Scene &scene)
{
    for (const Range &range : ranges) {
        std::vector<double> crests(pictureWidth);
        for (int x = 0; x < pictureWidth; ++x)
            crests[std::size_t(x)] = crestOf(range, x);
        LightPicture &view = scene.view;
        view.fill(0, int(horizon) + 12, [&](int x, int y) {
            const double crest = crests[std::size_t(x)];
            const double cover = std::clamp(y + 1.0 - crest, 0.0, 1.0);
            return cover <= 0.0 ? view.at(x, y) : mix(view.at(x, y), rangeAt(range, x, y, crest), cover);
        });
    }
    const LightPicture &view = scene.view;
    scene.mirrored.fill(0, pictureHeight, [&view](int x, int y) {
        return view.at(x, std::clamp(int(2 * horizon) - y, -view.above(), pictureHeight - 1));
    });
}

} // namespace zm::example
