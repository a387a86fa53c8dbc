#version 440
// A low autumn sun: leaves turn from green to gold, warm light spills from where the sun stands, and discs of light
// float in it.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads, five noises.
#extension GL_GOOGLE_include_directive : require
#include "../common/film.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_soft;
layout(std140, binding = 2) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10;
};
#define u_size u_param0.xy        // width and height, pixels
#define u_glowCenter u_param1.xy  // where the sun stands, 0..1
#define u_glowRadius u_param2.x   // pixels
#define u_flash u_param3.x        // strength of the sun's glow, 0..1
#define u_saturation u_param4.x   // -1..1
#define u_warmth u_param5.x       // 0..1
#define u_softness u_param6.x     // share of a soft copy, 0..1
#define u_bokeh u_param7.x        // discs of light, 0..1
#define u_vignette u_param8.x     // 0..1
#define u_grain u_param9.x        // 0..1
#define u_grainSize u_param10.x   // of a grain, pixels

const vec3 kSun = vec3(1.0, 0.60, 0.22); // linear

// One layer of discs: each lies whole within its own cell. `p` in cells; `edge` is the softness of the rim in cells.
vec3 discs(vec2 p, float edge, uint seed)
{
    ivec2 cell = ivec2(floor(p));
    vec3 place = hash23(cell, seed);
    vec3 look = hash23(cell, seed + 1u);
    float radius = 0.12 + 0.16 * look.x * look.x;
    float away = length(p - vec2(cell) - 0.5 - 0.42 * (place.xy - 0.5));
    float disc = 1.0 - smoothstep(radius - edge, radius + edge, away);
    float rim = 0.80 + 0.3 * smoothstep(0.3 * radius, radius, away); // lenses gather light towards the rim
    vec3 color = mix(vec3(1.0, 0.52, 0.16), vec3(1.0, 0.84, 0.52), place.z);
    return color * disc * rim * step(0.45, look.y) * (0.35 + 0.65 * look.z);
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 pixel = v_uv * u_size;
    vec3 light = toLinear(src.rgb);
    vec3 soft = softenedLight(texture(u_soft, v_uv), light);
    float softness = u_softness;
    // Sharp and blurred light together, as with a diffusion filter: lights bleed, detail stays.
    light = mix(light, soft, 0.4 * softness) + 0.35 * softness * soft * smoothstep(0.1, 0.8, linearLuminance(soft));
    light *= lensFalloff(v_uv, u_size, 0.9 * u_vignette);

    float warmth = u_warmth;
    vec3 lab = linearToOklab(rolledOff(light, 0.75));
    float skin = skinShare(lab.yz);
    // Leaves: the green share of a yellowish colour becomes red.
    float leaf = smoothstep(0.005, 0.06, lab.z) * max(0.02 - lab.y, 0.0) * smoothstep(0.0, 0.03, -lab.y + 0.01);
    lab.y += leaf * warmth * 1.4;
    lab.z += leaf * warmth * 0.30;
    lab.yz = vibrantChroma(lab.yz, 1.0 + u_saturation * (1.0 - 0.4 * skin));
    float shadows = lab.x * (1.0 - lab.x) * (1.0 - lab.x) * 6.75;
    float lights = lab.x * lab.x * (1.0 - lab.x * lab.x) * 4.0;
    float sky = smoothstep(0.0, 0.10, -lab.z); // red would turn blue to mauve
    vec2 tint = shadows * vec2(0.012, 0.010) + lights * vec2(0.014, 0.048);
    lab.yz += warmth * (1.0 - 0.4 * skin) * mix(tint, vec2(-0.6, 0.9) * tint.xy, sky);
    lab.x = toneCurve(lab.x, 0.12);
    light = max(oklabToLinear(lab), 0.0);

    // The sun: a wide glow and a hot heart, more where the picture is bright already.
    vec2 away = pixel - u_glowCenter * u_size;
    float reach = length(away) / max(u_glowRadius, 1e-3);
    float core = 1.0 / (1.0 + 4.0 * reach * reach);
    float glow = 0.55 * exp(-2.2 * reach * reach) + 0.35 * core * core;
    float veil = 0.20 + 0.80 * smoothstep(0.0, 0.6, linearLuminance(soft));
    light += u_flash * glow * veil * kSun;

    if (u_bokeh > 0.0) {
        float unit = length(u_size) / 1000.0;
        vec2 p = pixel / unit;
        vec3 sum = discs(rotation(0.4) * p / 105.0, 0.022, 11u) + discs(rotation(1.1) * p / 150.0 + 3.7, 0.040, 23u)
            + 0.7 * discs(rotation(-0.5) * p / 62.0 + 9.1, 0.030, 37u);
        float around = 0.06 + 0.94 * exp(-1.5 * reach * reach);
        light += u_bokeh * 0.75 * around * veil * sum;
    }

    vec3 rgb = toEncoded(rolledOff(light, 0.8));
    rgb = withGrain(rgb, filmGrain(pixel, u_grainSize, 0.2, 41u) * u_grain * 0.4);
    fragColor = vec4(clamp(dithered(rgb, gl_FragCoord.xy), 0.0, 1.0), src.a);
}
