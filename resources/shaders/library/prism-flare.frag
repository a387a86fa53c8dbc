#version 440
// Light that a prism has split, falling across the picture from a source. Beam: one wide rainbow. Rays: many thin ones.
// Crystal: scattered patches, as cut glass throws them. Reflections of the lens lie on the same line.
// In large pictures the light is drawn as a smaller map, and the picture stacked with that map (stacked.glsl) takes it
// from there.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads; for the light three noises,
// up to eight ghosts.
#extension GL_GOOGLE_include_directive : require
#include "../common/cellular.glsl"
#include "../common/film.glsl"
#include "../common/spectrum.glsl"
#include "../common/stacked.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10;
};
#define u_size u_param0.xy          // of the picture, pixels
#define u_start u_param1.xy         // the source, pixels
#define u_end u_param2.xy           // where the light ends, pixels
#define u_style u_param3.x          // 0 beam, 1 rays, 2 crystal
#define u_intensity u_param4.x      // 0..1
#define u_spread u_param5.x         // how the light opens on its way, 0..1
#define u_width u_param6.x          // at its source, 0..1
#define u_fragmentation u_param7.x  // how much it is broken into pieces, 0..1
#define u_ghosts u_param8.x         // reflections along the line, 0..8
#define u_seed u_param9.x           // 0..999
#define u_mapSize u_param10.xy      // of a map of the light, pixels; below 0 where it is drawn, 0 where there is none

const int kMaximumGhosts = 8;

// Light that begins softly at the source and dies away past the end.
float onItsWay(float a) { return smoothstep(-0.04, 0.22, a) * (1.0 - smoothstep(0.7, 1.3, a)); }

// s: -1..1 across the light; a: 0..1 along it.
vec3 beam(float s, float a, float fragmentation, uint seed)
{
    float lane = s * 2.2;
    float grain = 0.65 * gradientNoise(vec2(lane * 2.0, a * 1.3), seed)
        + 0.5 * gradientNoise(vec2(lane * 7.0, a * 2.6), seed + 1u);
    float broken = mix(1.0, smoothstep(-0.12, 0.4, grain + 0.04), fragmentation);
    float shift = 0.22 * fragmentation * gradientNoise(vec2(a * 2.4, lane), seed + 2u);
    float envelope = exp(-1.1 * s * s * s * s);
    vec3 color = spectrum(0.5 + 0.46 * s + shift);
    return (color + 0.12 * exp(-3.0 * s * s)) * envelope * broken * onItsWay(a);
}

vec3 rays(float s, float a, float fragmentation, uint seed)
{
    float lane = s * 5.0;
    float thin = gradientNoise(vec2(lane, 4.5), seed);
    float thinner = gradientNoise(vec2(lane * 3.7, 1.5), seed + 1u);
    float ray = pow(clamp(0.5 + 0.9 * thin + 0.45 * thinner, 0.0, 1.3), 3.0);
    float pieces = gradientNoise(vec2(lane * 1.5, a * 5.0), seed + 2u);
    ray *= mix(1.0, smoothstep(-0.05, 0.3, pieces), fragmentation);
    float hue = 0.5 + 0.75 * (a - 0.5) + 0.35 * thinner;
    return spectrum(clamp(hue, 0.05, 0.98)) * ray * exp(-1.2 * s * s) * onItsWay(a) * 1.15;
}

vec3 crystal(float s, float a, float fragmentation, uint seed)
{
    float count = mix(2.2, 6.5, fragmentation);
    vec2 p = vec2(a * 1.6, s * 0.55) * count;
    p += 0.25 * gradientNoise(p * 0.7, seed);
    Cellular facet = cellular(p, 0.95, seed + 1u);
    vec3 h = hash23(facet.cell, seed + 2u);
    float angle = 6.28318531 * h.x;
    vec2 across = vec2(cos(angle), sin(angle));
    float hue = 0.5 + 0.62 * dot(facet.centre, across) + 0.3 * (h.y - 0.5);
    float shape = smoothstep(0.02, 0.22, facet.f2 - facet.f1);
    float shine = smoothstep(0.35, 1.0, h.z);
    return spectrum(hue) * shape * shine * exp(-0.8 * s * s) * onItsWay(a) * 1.35;
}

// A reflection of the aperture: a soft-edged hexagon, turned by the seed, with a coloured rim.
vec3 ghost(vec2 px, int index, float diagonal, uint seed)
{
    vec3 h = hash23(ivec2(index, 3), seed);
    vec3 k = hash23(ivec2(index, 5), seed);
    vec2 line = u_end - u_start;
    float at = 0.3 + 1.15 * (float(index) + h.x) / float(kMaximumGhosts) * 1.1;
    vec2 from = px - (u_start + line * at);
    float radius = diagonal * mix(0.012, 0.075, h.y * h.y);
    vec2 q = abs(from) / max(radius, 1.0);
    float hexagon = max(q.x * 0.866 + q.y * 0.5, q.y);
    float d = mix(length(q), hexagon, 0.75);
    float inner = smoothstep(1.03, 0.86, d);
    float body = inner * (0.3 + 0.7 * d * d * d);
    vec3 tint = mix(vec3(0.8), spectrum(0.08 + 0.86 * k.x) * 1.2, 0.75);
    vec3 fringe = spectrum(clamp((d - 0.72) / 0.34, -0.3, 1.3)) * inner;
    return (tint * body + 0.25 * fringe) * mix(0.06, 0.2, k.y);
}

// What is added, as a share of the light that there is room for.
vec3 exposure()
{
    vec2 size = u_size;
    float diagonal = length(size);
    vec2 px = v_uv * size;
    uint seed = seedBits(u_seed);
    vec2 way = u_end - u_start;
    float reach = max(length(way), 0.02 * diagonal);
    vec2 along = length(way) > 0.0 ? normalize(way) : vec2(0.8, 0.6);
    vec2 from = px - u_start;
    float a = dot(from, along) / reach;
    float across = dot(from, vec2(-along.y, along.x)) / diagonal;
    across += 0.05 * a * a * reach / diagonal; // no beam through glass is quite straight
    float opening = 0.7 * u_spread * u_spread;
    float halfWidth = mix(0.01, 0.16, u_width) + max(a, 0.0) * reach / diagonal * opening;
    float s = across / halfWidth;
    int style = int(u_style + 0.5);
    float fragmentation = u_fragmentation;

    vec3 light;
    if (style == 0)
        light = beam(s, a, fragmentation, seed);
    else if (style == 1)
        light = rays(s, a, fragmentation, seed);
    else
        light = crystal(s, a, fragmentation, seed);
    light *= 0.95 * mix(1.0, 0.4, clamp(a, 0.0, 1.0));

    // The source: a white core in a warm bloom.
    float r = length(from) / (diagonal * mix(0.6, 1.4, u_width));
    light += vec3(1.0, 0.9, 0.74) * (1.1 * exp(-14.0 * r) + 0.5 * exp(-160.0 * r * r));

    for (int i = 0; i < kMaximumGhosts; ++i) {
        float share = clamp(u_ghosts - float(i), 0.0, 1.0);
        if (share <= 0.0)
            break;
        light += share * ghost(px, i, diagonal, seed + 20u);
    }

    return 1.0 - exp(-1.5 * light * u_intensity);
}

void main()
{
    vec4 src;
    vec3 exposed;
    if (u_mapSize.x > 0.5) {
        src = readStackedPicture(u_input, u_size, v_uv);
        vec3 root = readStackedMap(u_input, u_size, u_mapSize, v_uv).rgb;
        exposed = root * root;
    } else {
        src = texture(u_input, v_uv);
        exposed = exposure();
        if (u_mapSize.x < -0.5) {
            // The root spends the levels of a byte where the eye does.
            fragColor = vec4(clamp(dithered(sqrt(exposed), gl_FragCoord.xy), 0.0, 1.0), 1.0);
            return;
        }
    }
    vec3 base = toLinear(src.rgb);
    vec3 rgb = toEncoded(base + exposed * (1.0 - base));
    fragColor = vec4(clamp(dithered(rgb, gl_FragCoord.xy), 0.0, 1.0), src.a);
}
