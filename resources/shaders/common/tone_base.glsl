#ifndef ZM_TONE_BASE_GLSL
#define ZM_TONE_BASE_GLSL
// A picture stacked with a map of its broad tones (stacked.glsl). One pixel of the map stands for a square of
// cell x cell pixels. A tone is the luminance of encoded colour. Around its square, a pixel of the map takes broad tones
// to be share * tone + offset: where nothing but texture is, share is near 0 and the base is their mean; at edges it is
// near 1 and the base follows them. Being a straight line, it can turn no gradient round. He, Sun and Tang, "Guided
// Image Filtering", 2010.
// Red and green hold the offset, 0..1, as a number of 16 bits; blue holds the share.
#include "stacked.glsl"

const float kTextureVariance = 0.007; // of tones; at more, it is rather an edge than texture

// The last pixel of the map, counted from its origin.
ivec2 toneMapLast(ivec2 size, float cell)
{
    return clamp(ivec2(ceil(vec2(size) / cell - 0.001)) - 1, ivec2(0), size - 1);
}

// A number of 0..1 in two channels, and back.
vec2 packed16(float number)
{
    float bits = floor(clamp(number, 0.0, 1.0) * 65535.0 + 0.5);
    float high = floor(bits / 256.0);
    return vec2(high, bits - 256.0 * high) / 255.0;
}

float unpacked16(vec2 texel) { return dot(floor(texel * 255.0 + 0.5), vec2(256.0, 1.0)) / 65535.0; }

// x: the broad tone at a pixel with this tone; y: how much of what differs from it is texture rather than noise, 0..1.
// position: pixels of the picture. Four reads.
vec2 toneBase(sampler2D atlas, ivec2 size, float cell, vec2 position, float tone)
{
    ivec2 origin = mapOrigin(atlas, vec2(size));
    ivec2 last = toneMapLast(size, cell);
    vec2 place = position / cell - 0.5;
    ivec2 low = clamp(ivec2(floor(place)), ivec2(0), last);
    ivec2 high = clamp(ivec2(floor(place)) + 1, ivec2(0), last);
    vec2 f = fract(place);
    vec3 nw = texelFetch(atlas, origin + low, 0).rgb;
    vec3 ne = texelFetch(atlas, origin + ivec2(high.x, low.y), 0).rgb;
    vec3 sw = texelFetch(atlas, origin + ivec2(low.x, high.y), 0).rgb;
    vec3 se = texelFetch(atlas, origin + high, 0).rgb;
    float offset = mix(mix(unpacked16(nw.rg), unpacked16(ne.rg), f.x), mix(unpacked16(sw.rg), unpacked16(se.rg), f.x),
                       f.y);
    float share = mix(mix(nw.b, ne.b, f.x), mix(sw.b, se.b, f.x), f.y);
    return vec2(clamp(share * tone + offset, 0.0, 1.0), smoothstep(0.0, 0.07, share));
}

// The colour with another tone, and its chroma times `chroma`. Not clamped.
vec3 withTone(vec3 rgb, float tone, float newTone, float chroma)
{
    float ratio = (newTone + 0.03) / (tone + 0.03);
    return newTone + (rgb - tone) * min(ratio, 3.0) * chroma;
}

#endif
