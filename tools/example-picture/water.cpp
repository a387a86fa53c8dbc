// The lake, and the pebbles of its shore, which show through where it is shallow.
#include "example-picture/noise.h"
#include "example-picture/scene.h"

namespace zm::example {

namespace {

/// Pebbles: the cell whose centre is nearest decides the stone, and the distance to its centre the shape.
Light pebbles(double x, double y)
{
    const double down = 620.0 / (y - horizon + 40.0); // the ground lies flat
    const double groundX = (x - 800.0) * down / 26.0;
    const double groundY = down * 34.0;
    double nearest = 9.0;
    double second = 9.0;
    double dx = 0.0;
    double dy = 0.0;
    int cellX = 0;
    int cellY = 0;
    for (int row = -1; row <= 1; ++row) {
        for (int column = -1; column <= 1; ++column) {
            const int cx = int(std::floor(groundX)) + column;
            const int cy = int(std::floor(groundY)) + row;
            const double size = 0.75 + 0.6 * cellValue(cx, cy, 5);
            const double ax = (groundX - cx - 0.15 - 0.7 * cellValue(cx, cy, 1)) / size;
            const double ay = (groundY - cy - 0.15 - 0.7 * cellValue(cx, cy, 2)) / size;
            const double away = std::hypot(ax * (0.8 + 0.4 * cellValue(cx, cy, 6)), ay);
            if (away < nearest) {
                second = nearest;
                nearest = away;
                dx = ax;
                dy = ay;
                cellX = cx;
                cellY = cy;
            } else {
                second = std::min(second, away);
            }
        }
    }
    const double edge = smoothStep(0.02, 0.22, second - nearest);
    const double kind = cellValue(cellX, cellY, 3);
    Light stone = mix(Light{0.13f, 0.12f, 0.12f}, Light{0.42f, 0.38f, 0.34f}, cellValue(cellX, cellY, 4));
    if (kind > 0.72)
        stone = mix(stone, Light{0.40f, 0.22f, 0.11f}, 0.7);
    else if (kind < 0.12)
        stone = mix(stone, Light{0.70f, 0.67f, 0.62f}, 0.8);
    else if (kind < 0.3)
        stone = mix(stone, Light{0.16f, 0.20f, 0.24f}, 0.7);
    stone = stone * (1.0 + 0.5 * clouded(groundX * 7.0 + kind * 30.0, groundY * 7.0, 4, 91));
    // Light comes low from behind and a little from the right.
    const double dome = std::sqrt(std::max(0.0, 1.0 - nearest * nearest));
    const double lit = std::clamp(-0.85 * dy + 0.25 * dx + 0.25 * dome, 0.0, 1.0);
    const Light fallen = Light{0.26f, 0.31f, 0.40f} * (0.45 + 0.55 * dome) + Light{1.7f, 1.0f, 0.50f} * lit;
    return stone * fallen * (0.34 + 0.66 * edge);
}

/// How the surface leans at a place, -1 to 1, towards us and sideways; what is finer than a row is left out.
struct Lean
{
    double towards;
    double sideways;
};

Lean leanAt(double x, double y)
{
    const double near = y - horizon + 2.0;
    const double down = 700.0 / near;
    const double acrossRow = down / near; // of the ground, in one row
    Lean lean{0.0, 0.0};
    double scale = 0.9;
    double height = 0.5;
    for (std::uint32_t octave = 0; octave < 7; ++octave) {
        const double groundX = (x - 800.0) * down / 700.0 * 5.0 * scale;
        const double groundY = down * 5.0 * scale + 0.25 * groundX;
        const double visible = 1.0 - smoothStep(0.25, 0.8, acrossRow * 5.0 * scale);
        if (visible <= 0.0)
            break;
        lean.towards += height * visible * noise(groundX * 0.42, groundY, 500 + octave);
        lean.sideways += height * visible * noise(groundX * 0.5, groundY, 600 + octave);
        scale *= 1.9;
        height *= 0.72;
    }
    return lean;
}

Light waterAt(const Scene &scene, double x, double y)
{
    const double near = y - horizon;
    const double down = 700.0 / (near + 4.0);
    const double breeze = smoothStep(-0.25, 0.45, clouded((x - 800.0) * down / 2400.0, down * 0.55, 4, 44));
    const double rough = 0.22 + 0.78 * breeze;
    const Lean lean = leanAt(x, y);
    const double reach = 5.0 + 0.17 * near;
    const double readY = y + lean.towards * reach * rough - 1.5 * rough;
    const double readX = x + lean.sideways * reach * 0.35 * rough;
    Light mirrored = scene.mirrored.between(readX, std::max(readY, horizon + 1.0));

    const double grazing = std::clamp(std::exp(-near / 330.0) - 0.16 * lean.towards * rough, 0.05, 1.0);
    const double reflected = 0.14 + 0.78 * grazing;
    const double depth = shoreLine(x) - y;
    const double clear = std::exp(-std::max(0.0, depth) / 46.0);
    const Light bottom =
        clear > 0.01 ? pebbles(x + lean.sideways * 5.0, y + lean.towards * 4.0) * Light{0.55f, 0.66f, 0.62f} : Light{};
    const Light body = mix(Light{0.018f, 0.060f, 0.075f}, bottom, 0.85 * clear);
    Light colour = mirrored * reflected + body * (1.0 - reflected);

    // The path of the sun: facets that happen to lean the right way.
    const double width = 26.0 + 0.26 * near;
    const double path = std::exp(-std::pow((x - sunX - 0.03 * near) / width, 2));
    const double facet = smoothStep(0.18, 0.62, lean.towards + 0.35 * lean.sideways);
    colour = colour + Light{9.0f, 5.0f, 1.9f} * (path * facet * (0.25 + 0.75 * rough) * std::exp(-near / 420.0));
    // A thin mist lies on the far water.
    return mix(colour, haze(x, horizon), 0.45 * std::exp(-near / 16.0));
}

Light wet(Light stone, double x, double y)
{
    const double above = y - shoreLine(x);
    return stone * mix(0.5, 1.0, smoothStep(4.0, 34.0, above));
}

} // namespace

double shoreLine(double x)
{
    return 800.0 + 118.0 * smoothStep(100.0, 1500.0, x) + 14.0 * clouded(x / 210.0, 4.0, 4, 815);
}

double grassLine(double x)
{
    return 862.0 + 150.0 * smoothStep(250.0, 1450.0, x) + 26.0 * clouded(x / 170.0, 8.0, 4, 919);
}

void paintWater(Scene &scene)
{
    scene.view.fill(int(horizon), pictureHeight, [&scene](int x, int y) { return waterAt(scene, x + 0.5, y + 0.5); });
    for (const Scene::Standing &thing : scene.standing)
        lay(scene.view, thing.painted, thing.hazeShare, thing.strength);
}

void paintShore(Scene &scene)
{
    LightPicture &view = scene.view;
    view.fill(700, pictureHeight, [&view](int x, int y) {
        const double above = y - shoreLine(x);
        const double land = smoothStep(-1.5, 3.0, above + 2.0 * noise(x / 9.0, y / 5.0, 3));
        if (land <= 0.0)
            return view.at(x, y);
        Light stones;
        for (const double dy : {0.25, 0.75}) {
            for (const double dx : {0.25, 0.75})
                stones = stones + pebbles(x + dx, y + dy) * 0.25;
        }
        Light colour = mix(view.at(x, y), wet(stones, x, y), land);
        const double foam =
            std::exp(-std::pow((above - 1.0) / 2.2, 2)) * smoothStep(-0.1, 0.5, noise(x / 14.0, 3.0, 12));
        return colour + Light{1.0f, 0.85f, 0.68f} * (0.2 * foam);
    });
}

} // namespace zm::example
