#ifndef ZM_NOISE_GLSL
#define ZM_NOISE_GLSL
// Noise over the plane that never repeats. One cell is one unit of the coordinate; seeds give unrelated patterns.
#include "hash.glsl"

// Fades from 0 to 1 with no jump in the second derivative: Perlin, "Improving Noise", 2002.
vec2 quinticFade(vec2 t) { return t * t * t * (t * (t * 6.0 - 15.0) + 10.0); }

// The corners of a cell: (0, 0), (1, 0), (0, 1), (1, 1). Each row is a stretch of one long sequence, begun a golden
// section of all numbers away from the row before, so that no two rows of a picture meet.
uvec4 cornerHashes(ivec2 cell, uint seed)
{
    const uint rowStep = 2654435769u;
    uint first = uint(cell.x) + uint(cell.y) * rowStep + pcg(seed);
    return pcg(first + uvec4(0u, 1u, rowStep, rowStep + 1u));
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

// The same along a line, at a third of the price.
float lineNoise(float x, uint seed)
{
    float cell = floor(x);
    float t = x - cell;
    uint s = pcg(seed);
    float first = unitFloat(pcg(uint(int(cell)) + s));
    float second = unitFloat(pcg(uint(int(cell) + 1) + s));
    return mix(first, second, t * t * t * (t * (t * 6.0 - 15.0) + 10.0));
}

// Sines of whole turns, 0..1, right to a thousandth: two parabolas, then a share of their squares. Sines proper were
// most of the cost of the noise.
vec4 sineOfTurn(vec4 turn)
{
    vec4 x = 1.0 - 2.0 * turn;
    vec4 y = 4.0 * x * (1.0 - abs(x));
    return y * (0.775 + 0.225 * abs(y));
}

// The noise of four gradients, each given by its direction as a turn, at f within their cell.
float slopesMixed(vec4 turn, vec2 f, vec2 fade)
{
    vec4 slope = sineOfTurn(fract(turn + 0.25)) * vec4(f.x, f.x - 1.0, f.x, f.x - 1.0)
        + sineOfTurn(turn) * vec4(f.y, f.y, f.y - 1.0, f.y - 1.0);
    vec2 row = mix(slope.xz, slope.yw, fade.x);
    return 1.41421356 * mix(row.x, row.y, fade.y); // unit gradients reach the square root of one half
}

// Gradient noise after Perlin: -1..1, mean 0, mostly within 0.5. Forms of about one cell, in no preferred direction.
float gradientNoise(vec2 p, uint seed)
{
    vec2 cell = floor(p);
    return slopesMixed(unitFloat(cornerHashes(ivec2(cell), seed)), p - cell, quinticFade(p - cell));
}

// Two unrelated ones with the hashes of one, as a field of directions: each takes half the bits.
vec2 gradientNoise2(vec2 p, uint seed)
{
    vec2 cell = floor(p);
    vec2 f = p - cell;
    vec2 fade = quinticFade(f);
    uvec4 corner = cornerHashes(ivec2(cell), seed);
    return vec2(slopesMixed(vec4(ivec4(corner & 0xffffu)) / 65536.0, f, fade),
                slopesMixed(vec4(ivec4(corner >> 16u)) / 65536.0, f, fade));
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
