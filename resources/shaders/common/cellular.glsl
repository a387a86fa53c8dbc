#ifndef ZM_CELLULAR_GLSL
#define ZM_CELLULAR_GLSL
// Cells around scattered points: Worley, "A Cellular Texture Basis Function", 1996. One point a unit square, at its
// middle with a jitter of 0, anywhere in it with 1. Above 0.9 a far second neighbour may, rarely, be missed.
#include "hash.glsl"

struct Cellular
{
    float f1;     // distance to the nearest point, in units of the coordinate
    float f2;     // distance to the next
    ivec2 cell;   // the square of the nearest point: hash it for what one cell has in common
    vec2 centre;  // from here to the nearest point; p + centre is the point itself
};

vec2 cellPoint(ivec2 cell, float jitter, uint seed) { return vec2(cell) + 0.5 + jitter * (hash22(cell, seed) - 0.5); }

Cellular cellular(vec2 p, float jitter, uint seed)
{
    ivec2 home = ivec2(floor(p));
    Cellular result = Cellular(64.0, 64.0, home, vec2(0.0)); // squared distances until the end
    for (int y = -1; y <= 1; ++y) {
        for (int x = -1; x <= 1; ++x) {
            ivec2 cell = home + ivec2(x, y);
            vec2 centre = cellPoint(cell, jitter, seed) - p;
            float squared = dot(centre, centre);
            if (squared < result.f1) {
                result.f2 = result.f1;
                result.f1 = squared;
                result.cell = cell;
                result.centre = centre;
            } else {
                result.f2 = min(result.f2, squared);
            }
        }
    }
    result.f1 = sqrt(result.f1);
    result.f2 = sqrt(result.f2);
    return result;
}

// The distance from p to the border of its cell, true in every direction, where f2 - f1 is not: lines of even width.
// Inigo Quilez, "Voronoi borders". Costs 25 more points.
float cellBorder(vec2 p, Cellular found, float jitter, uint seed)
{
    float border = 64.0;
    for (int y = -2; y <= 2; ++y) {
        for (int x = -2; x <= 2; ++x) {
            if (x == 0 && y == 0)
                continue;
            vec2 other = cellPoint(found.cell + ivec2(x, y), jitter, seed) - p;
            vec2 between = other - found.centre;
            vec2 across = between * inversesqrt(max(dot(between, between), 1e-8));
            border = min(border, dot(0.5 * (found.centre + other), across));
        }
    }
    return max(border, 0.0);
}

#endif
