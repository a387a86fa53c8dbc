#version 440
// A winter day: cold shadows and pale colours under a veiled sun, frost creeping in from the edges of the glass, snow
// driven past by the wind.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads, up to a dozen noises.
#extension GL_GOOGLE_include_directive : require
#include "../common/cellular.glsl"
#include "../common/film.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_soft;
layout(std140, binding = 2) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10, u_param11;
};
#define u_size u_param0.xy         // width and height, pixels
#define u_lightCenter u_param1.xy  // where the sun stands, 0..1
#define u_lightRadius u_param2.x   // pixels
#define u_flash u_param3.x         // strength of the veiled sun, 0..1
#define u_saturation u_param4.x    // -1..1
#define u_coldness u_param5.x      // 0..1
#define u_softness u_param6.x      // share of a soft copy, 0..1
#define u_frost u_param7.x         // how far it reaches inward, 0..1
#define u_storm u_param8.x         // snow in the air, 0..1
#define u_vignette u_param9.x      // 0..1
#define u_grain u_param10.x        // 0..1
#define u_grainSize u_param11.x    // of a grain, pixels

// One layer of flakes, each within its own cell. `p` in cells, `edge` their softness, `share` how many cells have one.
float flakes(vec2 p, float radius, float edge, float share, uint seed)
{
    p.y += 0.5 * mod(floor(p.x), 2.0);
    ivec2 cell = ivec2(floor(p));
    vec3 place = hash23(cell, seed);
    vec3 look = hash23(cell, seed + 1u);
    float size = radius * (0.45 + 0.55 * look.x);
    vec2 offset = p - vec2(cell) - 0.5 - (1.0 - 2.0 * (radius + edge)) * (place.xy - 0.5);
    offset.y *= 0.62; // driven along the wind
    float flake = 1.0 - smoothstep(max(size - edge, 0.0), size + edge, length(offset));
    return flake * step(place.z, share) * (0.4 + 0.6 * look.y);
}

// Fern frost: crystals that grew from scattered seeds in six directions, with side branches, until they met. `p` and
// `cellSize` in the same unit; `spacing` is the distance of the branches. 0..1.
float ferns(vec2 p, float cellSize, float spacing, uint seed)
{
    Cellular found = cellular(p / cellSize, 0.9, seed);
    vec3 random = hash23(found.cell, seed + 1u);
    vec2 q = -found.centre * cellSize;
    const float kSector = 1.04719755;
    float angle = mod(atan(q.y, q.x + 1e-5) + 6.28318531 * random.x, kSector) - 0.5 * kSector;
    float away = length(q);
    vec2 arm = away * vec2(cos(angle), abs(sin(angle)));
    float spine = 1.0 - smoothstep(0.0, 0.35 * spacing, arm.y);
    float branch = abs(2.0 * fract((arm.x - 0.9 * arm.y) / spacing) - 1.0);
    float twig = abs(2.0 * fract((arm.x + 2.1 * arm.y) / (0.45 * spacing)) - 1.0);
    float feather = smoothstep(0.35, 1.0, branch) * (0.55 + 0.45 * twig);
    float seam = smoothstep(0.0, 0.10, found.f2 - found.f1);
    return max(spine, feather) * (0.35 + 0.65 * seam) * (0.45 + 0.55 * random.y);
}

// Crystals at two scales, bent a little, as nothing grows straight.
float ice(vec2 p)
{
    vec2 bend = 9.0 * vec2(gradientNoise(p * 0.02, 3u), gradientNoise(p * 0.02 + 5.2, 4u));
    float large = ferns(p + bend, 95.0, 9.0, 50u);
    float small = ferns(p + 0.5 * bend, 38.0, 4.0, 53u);
    return clamp(0.75 * large + 0.45 * small, 0.0, 1.0);
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec4 softCopy = texture(u_soft, v_uv);
    vec2 pixel = v_uv * u_size;
    float unit = length(u_size) / 1000.0;
    vec2 p = pixel / unit;

    vec3 light = toLinear(src.rgb);
    vec3 soft = softenedLight(softCopy, light);
    light = mix(light, soft, 0.45 * u_softness) + 0.22 * u_softness * soft * soft;

    // Frost on the glass: the picture behind it blurs, crystals catch the light.
    float frost = 0.0;
    float crystals = 0.0;
    if (u_frost > 0.0) {
        vec2 fromEdge = min(pixel, u_size - pixel) / unit;
        float inward = 1.3 / (1.0 / max(fromEdge.x, 0.01) + 1.0 / max(fromEdge.y, 0.01));
        float reach = 240.0 * u_frost;
        float rough = 0.7 * reach * (valueFbm(p * 0.013, 4.0, 8u) - 0.5) * 2.0;
        frost = 1.0 - smoothstep(0.0, max(reach, 1.0), inward + rough);
        frost *= frost;
        if (frost > 0.002) {
            // What is thin shows only the ridges of the crystals.
            float height = ice(p);
            crystals = smoothstep(1.0 - frost, 1.55 - 0.8 * frost, height) * smoothstep(0.0, 0.25, frost);
        }
        light = mix(light, soft, min(1.3 * frost, 0.8));
    }
    light *= lensFalloff(v_uv, u_size, 0.9 * u_vignette);

    float cold = u_coldness;
    vec3 lab = linearToOklab(rolledOff(light, 0.75));
    float skin = skinShare(lab.yz);
    lab.yz = vibrantChroma(lab.yz, (1.0 + u_saturation) * mix(1.0, 0.82, cold * (1.0 - 0.5 * skin)));
    lab.z -= 0.35 * cold * max(lab.z, 0.0) * (1.0 - 0.75 * skin);
    float shadows = lab.x * (1.0 - lab.x) * (1.0 - lab.x) * 6.75;
    float lights = lab.x * lab.x * (1.0 - lab.x * lab.x) * 4.0;
    lab.yz += cold * (1.0 - 0.55 * skin) * (shadows * vec2(-0.010, -0.046) + lights * vec2(-0.014, -0.020));
    lab.x = mix(lab.x, 0.03 + 0.97 * pow(max(lab.x, 0.0), 0.93), cold); // snow light fills the shadows
    light = max(oklabToLinear(lab), 0.0);

    float reach = length(pixel - u_lightCenter * u_size) / max(u_lightRadius, 1e-3);
    float glow = 0.6 * exp(-2.0 * reach * reach) + 0.25 / (1.0 + 5.0 * reach * reach);
    light += u_flash * glow * (0.3 + 0.7 * smoothstep(0.0, 0.6, linearLuminance(soft))) * vec3(0.80, 0.92, 1.0);

    light = mix(light, vec3(0.80, 0.90, 0.98), 0.22 * frost + 0.60 * crystals);
    if (u_storm > 0.0) {
        float storm = u_storm;
        mat2 wind = rotation(-0.45);
        vec2 sway = 6.0 * vec2(gradientNoise(p * 0.008, 60u), 0.0);
        float far = flakes(wind * (p + sway) / 13.0, 0.13, max(0.06, 0.05 / unit), 0.85 * storm, 70u);
        float middle = flakes(wind * (p + 1.5 * sway) / 34.0 + 4.3, 0.12, 0.05, 0.80 * storm, 72u);
        float near = flakes(wind * (p + 2.0 * sway) / 120.0 + 8.9, 0.14, 0.10, 0.06 + 0.5 * storm, 74u);
        float drift = smoothstep(0.35, 0.85, valueFbm(wind * p * vec2(0.004, 0.0016), 3.0, 78u));
        float clear = (1.0 - 0.70 * far) * (1.0 - 0.85 * middle) * (1.0 - 0.42 * near) * (1.0 - 0.22 * drift * storm);
        float snow = 1.0 - clear;
        light = mix(light, vec3(0.86, 0.92, 0.98), snow * smoothstep(0.0, 0.3, storm));
    }

    vec3 rgb = toEncoded(rolledOff(light, 0.8));
    rgb = withGrain(rgb, filmGrain(pixel, u_grainSize, 0.2, 43u) * u_grain * 0.5);
    fragColor = vec4(clamp(dithered(rgb, gl_FragCoord.xy), 0.0, 1.0), src.a);
}
