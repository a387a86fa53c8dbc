#version 440
// Opens shadows and brings back lights by compressing the broad tones, and lifts what is finer than them.
// In three steps: the map of tones is gathered beside the picture, smoothed within its surfaces, and used.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: ten texture reads, and two copies.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/tone_base.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0;  // texelSize: 1 / width and 1 / height of the picture, pixels
    vec4 u_param1;  // amount: compression of the broad tones, 0..1
    vec4 u_param2;  // detail: gain of what is finer, 0..1
    vec4 u_param3;  // color: 0..1
    vec4 u_param4;  // radius: x cell of the map, pixels; y step: 0 use, 1 gather, 2 smooth; zw size of the atlas
};

const int kMostTaps = 6;  // along a side of a cell
const int kReach = 4;     // of the smoothing, cells: two standard deviations

// The mean tone of a cell, of what is not transparent there.
vec4 gathered(ivec2 size, ivec2 at, float cell, bool isWanted)
{
    int taps = isWanted ? clamp(int(ceil(cell * 0.5)), 1, kMostTaps) : 0;
    float sum = 0.0;
    float alpha = 0.0;
    for (int y = 0; y < taps; ++y)
        for (int x = 0; x < taps; ++x) {
            vec2 position = (vec2(at) + (vec2(float(x), float(y)) + 0.5) / float(taps)) * cell;
            vec4 color = texelFetch(u_input, clamp(ivec2(position), ivec2(0), size - 1), 0);
            sum += luminance(color.rgb) * color.a;
            alpha += color.a;
        }
    return packedTone(alpha > 0.0 ? sum / alpha : 0.0, alpha / float(max(taps * taps, 1)));
}

// The mean over the surroundings whose tone is near: Tomasi and Manduchi, "Bilateral Filtering for Gray and Color
// Images", 1998.
vec4 smoothed(ivec2 size, ivec2 at, float cell, bool isWanted)
{
    int reach = isWanted ? kReach : -1;
    ivec2 origin = toneMapOrigin(size);
    ivec2 last = toneMapLast(size, cell);
    vec4 middle = texelFetch(u_input, origin + min(at, last), 0);
    float tone = unpackedTone(middle);
    float spread = middle.b > 0.02 ? 1.0 / kToneSpread : 0.0; // a transparent place takes what is around it
    float sum = 0.0;
    float total = 0.0;
    for (int y = -reach; y <= reach; ++y)
        for (int x = -reach; x <= reach; ++x) {
            vec4 texel = texelFetch(u_input, origin + clamp(at + ivec2(x, y), ivec2(0), last), 0);
            float value = unpackedTone(texel);
            vec3 away = vec3(vec2(float(x), float(y)) * (2.0 / float(kReach)), (value - tone) * spread);
            float weight = texel.b * exp(-0.5 * dot(away, away));
            sum += weight * value;
            total += weight;
        }
    return packedTone(total > 1e-6 ? sum / total : tone, middle.b);
}

// Steep near black and white, flat in between; black and white stay.
float compressed(float base, float amount)
{
    float lifted = pow(base, 1.0 / (1.0 + 0.85 * amount));
    float lowered = 1.0 - pow(1.0 - base, 1.0 / (1.0 + 0.55 * amount));
    return mix(lifted, lowered, smoothstep(0.1, 0.9, base));
}

vec4 toneMapped(ivec2 size, vec2 position, float cell)
{
    vec4 src = texelFetch(u_input, clamp(ivec2(position), ivec2(0), size - 1), 0);
    float amount = u_param1.x;
    float tone = luminance(src.rgb);
    float base = clamp(toneBase(u_input, size, cell, position, tone), 0.0, 1.0);
    float newBase = compressed(base, amount);

    // Detail follows its surroundings up, less in deep shadow, where it is noise; strong detail gains least.
    float fine = tone - base;
    float follow = clamp(sqrt((newBase + 0.02) / (base + 0.02)), 0.8, 1.6);
    float gain = follow * (1.0 + 2.4 * u_param2.x * smoothstep(0.0, 0.2, base + 0.05) / (1.0 + 6.0 * abs(fine)));
    float newTone = curved(newBase + fine * gain, 0.22 * amount);

    float chroma = max(src.r, max(src.g, src.b)) - min(src.r, min(src.g, src.b));
    float vivid = 1.0 + u_param3.x * (1.0 - 0.75 * smoothstep(0.15, 0.75, chroma));
    return vec4(fitted(withTone(src.rgb, tone, newTone, vivid)), src.a);
}

void main()
{
    ivec2 size = ivec2(1.0 / u_param0.xy + 0.5);
    float cell = max(u_param4.x, 1.0);
    if (u_param4.y < 0.5) {
        fragColor = toneMapped(size, v_uv * vec2(size), cell);
        return;
    }
    ivec2 pixel = ivec2(v_uv * u_param4.zw);
    ivec2 at = pixel - toneMapOrigin(size);
    bool isMap = any(greaterThanEqual(pixel, size));
    vec4 map = u_param4.y < 1.5 ? gathered(size, at, cell, isMap) : smoothed(size, at, cell, isMap);
    fragColor = isMap ? map : texelFetch(u_input, min(pixel, size - 1), 0);
}
