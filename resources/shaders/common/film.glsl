#ifndef ZM_FILM_GLSL
#define ZM_FILM_GLSL
// What film and lenses do to a picture: grain, dark corners, highlights that roll off instead of clipping.
#include "color.glsl"
#include "noise.glsl"

// Three unrelated value noises, mean 0, within -0.5..0.5, for the price of one: each takes ten bits of a corner's
// hash.
vec3 valueNoise3(vec2 p, uint seed)
{
    vec2 cell = floor(p);
    vec2 fade = quinticFade(p - cell);
    uvec4 corner = cornerHashes(ivec2(cell), seed);
    vec4 weight = vec4((1.0 - fade.x) * (1.0 - fade.y), fade.x * (1.0 - fade.y), (1.0 - fade.x) * fade.y,
                       fade.x * fade.y) / 1023.0;
    return vec3(dot(vec4(ivec4(corner & 1023u)), weight), dot(vec4(ivec4((corner >> 10u) & 1023u)), weight),
                dot(vec4(ivec4((corner >> 20u) & 1023u)), weight)) - 0.5;
}

// Film grain: clumps of about `size` pixels, mean 0, deviation about 1. `pixel` counts pixels of the picture; `chroma`
// is the share that differs between the channels, 0..1. Two lattices turned against each other hide both. Grains
// smaller than a pixel average out.
vec3 filmGrain(vec2 pixel, float size, float chroma, uint seed)
{
    vec2 p = pixel / max(size, 1.0);
    vec3 fine = valueNoise3(mat2(0.8, 0.6, -0.6, 0.8) * p, seed);
    vec3 clumps = valueNoise3(mat2(0.47, -0.29, 0.29, 0.47) * p + 31.7, seed + 1u);
    vec3 grain = (3.9 * fine + 2.7 * clumps) * min(size, 1.0);
    return mix(vec3(grain.g), grain, chroma);
}

// Grain as a film has it: it varies the density, so that black and white stay clean and middle tones show most; the
// mean stays. `color` is encoded, 0..1; a grain of 0.1 shifts middle grey by about 4 %.
vec3 withGrain(vec3 color, vec3 grain)
{
    vec3 density = (1.0 - color) * (1.8 - 0.8 * color); // close to the logarithm, and less in the dark
    return max(color * (1.0 - grain * density), 0.0);
}

// How far out a place is: 0 in the middle, 1 in the corners, growing with the square of the distance.
float fieldSquared(vec2 uv, vec2 size)
{
    vec2 offset = (2.0 * uv - 1.0) * size;
    return dot(offset, offset) / dot(size, size);
}

// The loss of light towards the corners, as a factor for linear light; after the law of the fourth power of the cosine.
float lensFalloff(vec2 uv, vec2 size, float strength)
{
    float cosine = 1.0 / (1.0 + 1.1 * strength * fieldSquared(uv, size));
    return cosine * cosine;
}

// Linear light above `knee` is rolled off towards 1, which is never passed.
vec3 rolledOff(vec3 linear, float knee)
{
    float room = 1.0 - knee;
    vec3 over = max(linear - knee, 0.0) / room;
    return min(linear, knee) + room * over / (1.0 + over);
}

// sRGB to linear as a polynomial, for blurred copies and other places where an error of a level does not show.
vec3 toLinearFast(vec3 c) { return c * (c * (c * 0.305306011 + 0.682171111) + 0.012522878); }

// The light of a blurred copy, and the sharp light where the blur has picked up transparent surroundings.
vec3 softenedLight(vec4 soft, vec3 sharpLight)
{
    return mix(sharpLight, toLinearFast(soft.rgb), smoothstep(0.9, 0.999, soft.a));
}

// Moves by less than half a level of 255, so that slow gradients do not turn into steps; whole levels stay. Jorge
// Jimenez, "Next Generation Post Processing in Call of Duty: Advanced Warfare", 2014: interleaved gradient noise.
vec3 dithered(vec3 encoded, vec2 fragment)
{
    float noise = fract(52.9829189 * fract(dot(fragment, vec2(0.06711056, 0.00583715))));
    return encoded + (fract(noise + vec3(0.0, 0.33, 0.67)) - 0.5) * (0.998 / 255.0);
}

// An S curve through 0, 0.5 and 1 for amounts above 0, a flatter line through 0.5 below; -1..1, 0 changes nothing.
float toneCurve(float tone, float amount)
{
    float t = clamp(tone, 0.0, 1.0);
    float steep = t * t * (3.0 - 2.0 * t);
    return amount > 0.0 ? mix(t, steep, amount) : mix(t, 0.25 + 0.5 * t, -amount);
}

// Chroma of an Oklab colour times `amount`; strong colours gain less than weak ones, so that none of them clips hard.
vec2 vibrantChroma(vec2 ab, float amount)
{
    float chroma = length(ab);
    float gain = amount > 1.0 ? 1.0 + (amount - 1.0) / (1.0 + 3.0 * chroma * amount) : amount;
    return ab * gain;
}

// How much a colour (Oklab a, b) is skin, 0..1: hues from red to yellow, neither grey nor garish.
float skinShare(vec2 ab)
{
    float chroma = length(ab);
    float towards = dot(ab, vec2(0.64, 0.77)) / max(chroma, 1e-4);
    return smoothstep(0.80, 0.97, towards) * smoothstep(0.015, 0.05, chroma) * (1.0 - smoothstep(0.11, 0.19, chroma));
}

#endif
