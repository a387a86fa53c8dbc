#ifndef ZM_TONE_BASE_GLSL
#define ZM_TONE_BASE_GLSL
// A picture and the map of its broad tones in one texture. The map lies below a picture that is wider than high, else
// to the right of it. One pixel of the map stands for a square of cell x cell pixels: red and green hold the tone,
// 0..1, as a number of 16 bits; blue holds the mean alpha. A tone is the luminance of encoded colour.

const float kToneSpread = 0.13; // tones that differ by more belong to different surfaces

ivec2 toneMapOrigin(ivec2 size) { return size.x >= size.y ? ivec2(0, size.y) : ivec2(size.x, 0); }
// The last pixel of the map, counted from its origin.
ivec2 toneMapLast(ivec2 size, float cell)
{
    return clamp(ivec2(ceil(vec2(size) / cell - 0.001)) - 1, ivec2(0), size - 1);
}

vec4 packedTone(float tone, float alpha)
{
    float bits = floor(clamp(tone, 0.0, 1.0) * 65535.0 + 0.5);
    float high = floor(bits / 256.0);
    return vec4(high / 255.0, (bits - 256.0 * high) / 255.0, alpha, 1.0);
}

float unpackedTone(vec4 texel) { return dot(floor(texel.rg * 255.0 + 0.5), vec2(256.0, 1.0)) / 65535.0; }

// The tone of the surroundings that belong to the same surface as a pixel with this tone. position: pixels of the
// picture. Nine reads.
float toneBase(sampler2D atlas, ivec2 size, float cell, vec2 position, float tone)
{
    ivec2 origin = toneMapOrigin(size);
    ivec2 last = toneMapLast(size, cell);
    vec2 place = position / cell - 0.5;
    vec2 nearest = floor(place + 0.5);
    vec2 f = place - nearest;
    vec2 weights[3] = vec2[](0.5 * (0.5 - f) * (0.5 - f), 0.75 - f * f, 0.5 * (0.5 + f) * (0.5 + f));
    float sum = 0.0;
    float total = 0.0;
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x) {
            ivec2 at = clamp(ivec2(nearest) + ivec2(x - 1, y - 1), ivec2(0), last);
            vec4 texel = texelFetch(atlas, origin + at, 0);
            float base = unpackedTone(texel);
            float difference = (base - tone) / kToneSpread;
            float weight =
                weights[x].x * weights[y].y * texel.b * (exp(-0.5 * difference * difference) + 0.0005);
            sum += weight * base;
            total += weight;
        }
    return total > 1e-7 ? sum / total : tone;
}

// The colour with another tone, and its chroma times `chroma`, within 0..1.
vec3 withTone(vec3 rgb, float tone, float newTone, float chroma)
{
    float ratio = (newTone + 0.03) / (tone + 0.03);
    return newTone + (rgb - tone) * min(ratio, 3.0) * chroma;
}

#endif
