#ifndef ZM_NOISE_GLSL
#define ZM_NOISE_GLSL
// Noise over the plane that never repeats. One cell is one unit of the coordinate; seeds give unrelated patterns.
#include "hash.glsl"

// Fades from 0 to 1 with no jump in the second derivative: Perlin, "Improving Noise", 2002.
vec2 quinticFade(vec2 t) { return t * t * t * (t * (t * 6.0 - 15.0) + 10.0); }

// The corners of a cell: (0, 0), (1, 0), (0, 1), (1, 1).
uvec4 cornerHashes(ivec2 cell, uint seed)
{
    uint s = pcg(seed);
    uint top = pcg(uint(cell.y) + s);
    uint bottom = pcg(uint(cell.y + 1) + s);
    uint x = uint(cell.x);
    return pcg(uvec4(x + top, x + 1u + top, x + bottom, x + 1u + bottom));
}

// Value noise: 0..1, mean 0.5, soft squares. The cheapest.
float valueNoise(vec2 p, uint seed)
{
    vec2 cell = floor(p);
    vec2 fade = quinticFade(p - cell);
    vec4 corner = unitFloat(cornerHashes(ivec2(cell), seed));
    vec2 row = mix(corner.xz, corner.yw, fade.x);
    return mix(row.x, row.y, fade.y);
}

// Gradient noise after Perlin: -1..1, mean 0, mostly within 0.5. Forms of about one cell, in no preferred direction.
float gradientNoise(vec2 p, uint seed)
{
    vec2 cell = floor(p);
    vec2 f = p - cell;
    vec4 angle = unitFloat(cornerHashes(ivec2(cell), seed)) * 6.28318531;
    vec4 slope = cos(angle) * vec4(f.x, f.x - 1.0, f.x, f.x - 1.0)
        + sin(angle) * vec4(f.y, f.y, f.y - 1.0, f.y - 1.0);
    vec2 fade = quinticFade(f);
    vec2 row = mix(slope.xz, slope.yw, fade.x);
    return 1.41421356 * mix(row.x, row.y, fade.y); // unit gradients reach the square root of one half
}

// From octave to octave: twice as fine, turned so that the lattices never line up, and moved off the common origin.
const mat2 kOctaveStep = mat2(1.6, 1.2, -1.2, 1.6);
const vec2 kOctaveShift = vec2(17.31, 9.73);
const int kMaximumOctaves = 8;

// Sums of octaves, the first of amplitude 1/2, each next one half of the one before. The sum is not stretched by the
// number of octaves, so that leaving out fine ones leaves the large forms alone; a fractional last octave fades in.
// fbm: gradient noise, within -1..1, mean 0. valueFbm: value noise, within 0..1, mean 0.5.
float fbm(vec2 p, float octaves, uint seed)
{
    float sum = 0.0;
    float amplitude = 0.5;
    for (int i = 0; i < kMaximumOctaves; ++i) {
        float share = clamp(octaves - float(i), 0.0, 1.0);
        if (share <= 0.0)
            break;
        sum += share * amplitude * gradientNoise(p, seed + uint(i));
        amplitude *= 0.5;
        p = kOctaveStep * p + kOctaveShift;
    }
    return sum;
}

float valueFbm(vec2 p, float octaves, uint seed)
{
    float sum = 0.5;
    float amplitude = 0.5;
    for (int i = 0; i < kMaximumOctaves; ++i) {
        float share = clamp(octaves - float(i), 0.0, 1.0);
        if (share <= 0.0)
            break;
        sum += share * amplitude * (valueNoise(p, seed + uint(i)) - 0.5);
        amplitude *= 0.5;
        p = kOctaveStep * p + kOctaveShift;
    }
    return sum;
}

// How many octaves pixels can show when the first has cells of `cellSize` pixels: finer ones would only flicker.
float visibleOctaves(float cellSize, float octaves)
{
    return clamp(log2(max(cellSize, 1.0)), 1.0, max(octaves, 1.0));
}

#endif
