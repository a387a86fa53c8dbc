#version 440
// A pale apparition: cold and colourless, doubled by soft copies of itself, shining where it is bright and lost in mist
// below. Two passes: the first makes a reduced copy, to be blurred, with premultiplied alpha; the second reads it beside
// the picture (common/stacked.glsl).
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: 16 reads a pixel of the copy, four a pixel.
#extension GL_GOOGLE_include_directive : require
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
#include "../common/stacked.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10;
};
#define u_size u_param0.xy       // of the picture, pixels
#define u_texelSize u_param1.xy  // one pixel in 0..1
#define u_tint u_param2.rgb
#define u_strength u_param3.x    // 0..1
#define u_blurRadius u_param4.x  // sigma of the copy, pixels; 0 makes the copy
#define u_noise u_param5.x       // 0..1
#define u_threshold u_param6.x   // brightness from which something shows, 0..1
#define u_softness u_param7.x    // span of brightness around it, above 0
#define u_glow u_param8.x        // 0..1
#define u_fade u_param9.x        // how much mist there is, 0..1
#define u_copySize u_param10.xy  // of the soft copy, pixels

float apparition(float tone) { return smoothstep(u_threshold - u_softness, u_threshold + u_softness, tone); }

// The soft copy, which transparent surroundings darken no more than they must.
vec3 softAt(vec2 uv) { return straight(readStackedMap(u_input, u_size, u_copySize, uv)).rgb; }

void main()
{
    vec2 size = u_size;
    if (u_blurRadius <= 0.0) {
        vec4 sum = vec4(0.0);
        for (int i = 0; i < 4; ++i)
            sum += premultiplied(readInside(u_input, v_uv + (vec2(i & 1, i >> 1) - 0.5) * 0.5 / u_copySize));
        fragColor = sum * 0.25;
        return;
    }

    vec4 src = readStackedPicture(u_input, size, v_uv);
    vec2 px = v_uv * size;
    float unit = length(size) / 1000.0;

    // Itself, and beside it the two that it is about to become; mist carries them off in waves.
    float sway = gradientNoise(px / (60.0 * unit), 31u);
    vec2 apart = u_texelSize * u_blurRadius * vec2(1.6, 0.5 * sway);
    vec3 soft = softAt(v_uv);
    float toneSoft = luminance(soft);
    float toneBeside = max(luminance(softAt(v_uv + apart)), luminance(softAt(v_uv - apart)));
    float tone = luminance(src.rgb);
    float body = mix(tone, toneSoft, 0.25);
    body = max(body, mix(body, toneBeside, 0.7));

    // Bright things appear, dark ones recede to a cold depth.
    float shown = apparition(body);
    vec3 tint = u_tint;
    vec3 depth = tint * tint * vec3(0.11, 0.13, 0.17);
    float pale = mix(0.62 * body, pow(body, 0.7), shown);
    vec3 ghost = mix(depth, tint * (1.0 + 0.12 * pale), pale);
    ghost = mix(ghost, ghost * (0.55 + 0.9 * mix(src.rgb, vec3(tone), 0.85)), 0.35);

    // What shines is the soft copy of what appears.
    float halo = apparition(toneSoft) * (0.35 + 0.65 * toneSoft);
    ghost = blendScreen(clamp(ghost, 0.0, 1.0), tint * clamp(halo * u_glow * 0.75, 0.0, 1.0));

    // Mist rises from below in long drifts.
    float fade = u_fade;
    vec2 drift = px / (230.0 * unit) * vec2(0.8, 2.2);
    drift += 0.22 * vec2(sway, gradientNoise(px / (120.0 * unit), 32u));
    float fog = fbm(drift, 5.0, 33u);
    float veil = smoothstep(1.2 - 1.0 * fade, 1.65 - 0.6 * fade, v_uv.y + 0.55 * fog + 0.15);
    float wisp = smoothstep(-0.15, 0.6, fog) * 0.5 * fade;
    vec3 mist = tint * (0.68 + 0.3 * fog);
    ghost = mix(ghost, mist, clamp(veil * 0.85 + wisp * (1.0 - veil), 0.0, 0.92) * smoothstep(0.0, 0.1, fade));

    // The grain of a plate that was exposed too long.
    float grain = valueNoise(px / (1.1 * unit) + 3.0, 35u) + 0.6 * valueNoise(px / (2.7 * unit), 36u) - 0.8;
    ghost += grain * u_noise * 0.26 * (0.35 + ghost.g);

    fragColor = vec4(clamp(mix(src.rgb, ghost, u_strength), 0.0, 1.0), src.a);
}
