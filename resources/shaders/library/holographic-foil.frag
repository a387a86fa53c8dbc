#version 440
// The picture embossed into foil: silver that splits light into bands of colour, which bend over the picture's forms
// and the foil's own creases, with fine glitter.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: five texture reads, four noises.
#extension GL_GOOGLE_include_directive : require
#include "../common/sampling.glsl"
#include "../common/noise.glsl"
#include "../common/shapes.glsl"
#include "../common/spectrum.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6;
};
#define u_size u_param0.xy        // width and height, pixels
#define u_angle u_param1.x        // of the bands, radians
#define u_rainbow u_param2.x      // strength and number of the bands, 0..1
#define u_foilScalePx u_param3.x  // from crease to crease, pixels
#define u_shimmer u_param4.x      // play of light and glitter, 0..1
#define u_relief u_param5.x       // how deep the picture is embossed, 0..1
#define u_blend u_param6.x        // 0 the picture, 1 all foil

const uint kSeed = 401u;

// As sobelGradient(), from the corners alone: half the reads, and hardly more noise.
vec2 toneSlope(vec2 uv, vec2 reach)
{
    float nw = coveredLuminance(u_input, uv - reach);
    float ne = coveredLuminance(u_input, uv + vec2(reach.x, -reach.y));
    float sw = coveredLuminance(u_input, uv + vec2(-reach.x, reach.y));
    float se = coveredLuminance(u_input, uv + reach);
    return 2.0 * vec2(ne + se - nw - sw, sw + se - nw - ne);
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 size = u_size;
    float scale = max(u_foilScalePx, 1.0);
    float diagonal = length(size);
    vec2 p = v_uv * size / scale;
    float tone = luminance(src.rgb);

    // The foil's surface: soft creases, and the picture pressed into it.
    vec2 wave = gradientNoise2(p * 0.9, kSeed);
    vec2 folds = p * 2.6 + 1.2 * wave;
    vec2 crease = gradientNoise2(folds, kSeed + 2u);
    vec2 slope = toneSlope(v_uv, max(0.0016 * diagonal, 1.0) / size);
    slope /= 1.0 + 0.5 * length(slope);
    vec2 surface = 0.6 * wave + 0.3 * crease + 1.3 * u_relief * slope;
    vec3 normal = normalize(vec3(-surface, 1.6));

    vec2 across = vec2(cos(u_angle), sin(u_angle));
    float bands = mix(0.55, 1.7, u_rainbow);
    float order = bands * (dot(p, across) + 0.8 * dot(surface, across) + 0.45 * tone * u_relief + 0.3 * wave.x);
    vec3 colors = interference(order);
    vec3 pastel = mix(vec3(1.0), 0.42 + 0.75 * colors, mix(0.1, 1.0, u_rainbow));

    vec3 light = normalize(vec3(-across, 1.1));
    float gleam = pow(max(dot(reflect(-light, normal), vec3(0.0, 0.0, 1.0)), 0.0), 7.0);
    float sheen = 0.55 + (0.3 + 0.38 * u_shimmer) * sin(6.28318531 * (0.5 * order + dot(normal.xy, across)));

    // Glitter: flakes, each tilted its own way, of which some catch the light.
    float flake = 0.0032 * diagonal;
    vec2 g = v_uv * size / max(flake, 1.0);
    ivec2 cell = ivec2(floor(g));
    vec3 h = hash23(cell, kSeed + 4u);
    vec2 q = fract(g) - 0.5 - 0.3 * (h.yz - 0.5);
    float core = smoothstep(0.2, 0.0, length(q));
    float cross = smoothstep(0.014, 0.0, abs(q.x * q.y)) * smoothstep(0.34, 0.0, length(q));
    float spark = smoothstep(0.84, 0.97, h.x) * (1.4 * core + 0.9 * cross);
    spark *= 0.25 + 1.6 * smoothstep(0.4, 1.0, sheen);

    float silver = mix(0.68, 1.1, sheen);
    vec3 foil = pastel * silver * mix(0.27, 1.02, pow(tone, 0.8));
    foil += 0.4 * gleam * mix(vec3(1.0), colors, 0.35) + 0.1 * colors * u_rainbow * (1.0 - tone);
    vec3 glint = u_shimmer * spark * (0.5 + colors);
    foil += glint;
    // The picture as ink on the foil: its dark parts hide it, its light ones let it shine.
    vec3 printed = src.rgb * pastel * (0.72 + 0.4 * silver);
    vec3 shine = colors * u_rainbow * (0.05 + 0.28 * sheen * sheen) * (0.3 + 0.7 * tone) + 0.3 * gleam;
    printed = blendScreen(clamp(printed, 0.0, 1.0), shine);
    printed += 0.6 * glint;
    float blend = u_blend;
    vec3 rgb = mix(mix(src.rgb, printed, smoothstep(0.0, 0.5, blend)), foil, smoothstep(0.4, 1.0, blend) * 0.92);
    fragColor = vec4(clamp(rgb, 0.0, 1.0), src.a);
}
