#version 440
// Opens shadows and brings back lights by compressing the broad tones, and lifts what is finer than them.
// In three steps: the map of tones is gathered from the picture, smoothed, and used, stacked with the picture.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: five texture reads, and a few for the map.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/tone_base.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6;
};
#define u_texelSize u_param0.xy  // 1 / width and 1 / height of the picture, pixels
#define u_amount u_param1.x      // compression of the broad tones, 0..1
#define u_detail u_param2.x      // gain of what is finer, 0..1
#define u_color u_param3.x       // 0..1
#define u_radius u_param4.x      // cell of the map, pixels
#define u_step u_param5.x        // 0 use, 1 gather, 2 smooth
#define u_mapSize u_param6.xy    // pixels

const int kMostTaps = 6;  // along a side of a cell
const int kReach = 4;     // of the smoothing, cells: two standard deviations

// Mean and standard deviation of the tones in a cell, of what is not transparent there, and the mean alpha.
vec4 gathered(ivec2 size, ivec2 at, float cell)
{
    int taps = clamp(int(ceil(cell * 0.5)), 1, kMostTaps);
    vec2 sum = vec2(0.0);
    float alpha = 0.0;
    for (int y = 0; y < taps; ++y)
        for (int x = 0; x < taps; ++x) {
            vec2 position = (vec2(at) + (vec2(float(x), float(y)) + 0.5) / float(taps)) * cell;
            vec4 color = texelFetch(u_input, clamp(ivec2(position), ivec2(0), size - 1), 0);
            float tone = luminance(color.rgb);
            sum += vec2(tone, tone * tone) * color.a;
            alpha += color.a;
        }
    sum /= max(alpha, 1e-5);
    return vec4(packed16(sum.x), sqrt(max(sum.y - sum.x * sum.x, 0.0)), alpha / float(taps * taps));
}

// Offset and share from the mean and the variance over the surroundings, by a bell curve.
vec4 smoothed(ivec2 at)
{
    ivec2 last = textureSize(u_input, 0) - 1;
    vec2 sum = vec2(0.0);
    float total = 0.0;
    for (int y = -kReach; y <= kReach; ++y)
        for (int x = -kReach; x <= kReach; ++x) {
            vec4 texel = texelFetch(u_input, clamp(at + ivec2(x, y), ivec2(0), last), 0);
            float mean = unpacked16(texel.rg);
            vec2 away = vec2(float(x), float(y)) * (2.0 / float(kReach));
            float weight = texel.a * exp(-0.5 * dot(away, away));
            sum += vec2(mean, mean * mean + texel.b * texel.b) * weight;
            total += weight;
        }
    sum /= max(total, 1e-5);
    float variance = max(sum.y - sum.x * sum.x, 0.0);
    // Rounded first, so that the offset fits what is stored.
    float share = total > 1e-4 ? floor(255.0 * variance / (variance + kTextureVariance) + 0.5) / 255.0 : 1.0;
    return vec4(packed16(sum.x * (1.0 - share)), share, 1.0);
}

// Steep near black and white, flat in between; black and white stay.
float compressed(float base, float amount)
{
    float lifted = pow(base, 1.0 / (1.0 + 0.85 * amount));
    float lowered = 1.0 - pow(1.0 - base, 1.0 / (1.0 + 0.42 * amount));
    return mix(lifted, lowered, smoothstep(0.1, 0.9, base));
}

vec4 toneMapped(ivec2 size, vec2 position, float cell)
{
    vec4 src = texelFetch(u_input, clamp(ivec2(position), ivec2(0), size - 1), 0);
    float amount = u_amount;
    float tone = luminance(src.rgb);
    vec2 broad = toneBase(u_input, size, cell, position, tone);
    float base = broad.x;
    // Strong colours look brighter than their tone: a deep blue sky is no shadow.
    float chroma = max(src.r, max(src.g, src.b)) - min(src.r, min(src.g, src.b));
    float strong = smoothstep(0.2, 0.8, chroma);
    float newBase = mix(compressed(base, amount), base, 0.65 * strong);

    // Detail follows its surroundings up, but noise does not, nor what lies in deep shadow; strong detail gains least.
    float fine = tone - base;
    float follow = clamp(sqrt((newBase + 0.02) / (base + 0.02)), 0.8, 1.6);
    float clear = mix(0.2, 1.0, broad.y) * smoothstep(-0.05, 0.15, base);
    float gain = follow * (1.0 + 3.0 * u_detail * clear / (1.0 + 6.0 * abs(fine)));
    float newTone = curved(newBase + fine * gain, 0.22 * amount);

    // Faint colours gain more than strong ones.
    float vivid = 1.0 - 0.12 * amount + u_color * (1.0 - 0.75 * strong);
    return vec4(fitted(withTone(src.rgb, tone, newTone, vivid)), src.a);
}

void main()
{
    ivec2 size = ivec2(1.0 / u_texelSize + 0.5);
    float cell = max(u_radius, 1.0);
    if (u_step < 0.5) {
        fragColor = toneMapped(size, v_uv * vec2(size), cell);
        return;
    }
    ivec2 at = ivec2(v_uv * u_mapSize);
    fragColor = u_step < 1.5 ? gathered(size, at, cell) : smoothed(at);
}
