#include "example-picture/noise.h"

namespace zm::example {

double noise(double x, double y, std::uint32_t seed)
{
    const double left = std::floor(x);
    const double top = std::floor(y);
    const double fx = x - left;
    const double fy = y - top;
    const auto corner = [&](int dx, int dy) {
        const double angle = cellValue(int(left) + dx, int(top) + dy, seed) * 6.283185307179586;
        return std::cos(angle) * (fx - dx) + std::sin(angle) * (fy - dy);
    };
    const auto fade = [](double t) { return t * t * t * (t * (t * 6.0 - 15.0) + 10.0); };
    const double u = fade(fx);
    return 1.5 * mix(mix(corner(0, 0), corner(1, 0), u), mix(corner(0, 1), corner(1, 1), u), fade(fy));
}

double clouded(double x, double y, int octaves, std::uint32_t seed)
{
    double sum = 0.0;
    double height = 0.55;
    for (int octave = 0; octave < octaves; ++octave) {
        sum += height * noise(x, y, seed + std::uint32_t(octave));
        height *= 0.5;
        // Turned a little, so that the grids of two octaves never lie upon one another.
        const double turned = 1.6 * x + 1.2 * y;
        y = 1.6 * y - 1.2 * x;
        x = turned;
    }
    return sum;
}

double ridged(double x, double y, int octaves, std::uint32_t seed)
{
    double sum = 0.0;
    double height = 0.5;
    double weight = 1.0;
    for (int octave = 0; octave < octaves; ++octave) {
        double crest = 1.0 - std::abs(noise(x, y, seed + std::uint32_t(octave)));
        crest *= crest * weight;
        weight = std::clamp(crest * 1.8, 0.0, 1.0); // what is low stays smooth
        sum += height * crest;
        height *= 0.5;
        const double turned = 1.6 * x + 1.2 * y;
        y = 1.6 * y - 1.2 * x;
        x = turned;
    }
    return sum;
}

} // namespace zm::example
