#version 440
// The edges of the picture as glowing discharges over its darkened self, in three passes: a map of tones, to be
// smoothed; from it how bright the lines are, to be blurred; the drawing, from the picture with both maps in one beside
// it (common/stacked.glsl), red the tones and green the glow.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: 13 reads a pixel of the map, eleven a pixel.
#extension GL_GOOGLE_include_directive : require
#include "../common/edges.glsl"
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
#include "../common/stacked.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9;
};
#define u_size u_param0.xy          // of the picture, pixels
#define u_edgeThreshold u_param1.x  // 0..1
#define u_lineIntensity u_param2.x  // 0..1
#define u_glowRadius u_param3.x     // not read, as the blur is done before
#define u_glowColor u_param4.rgb    // glow colour
#define u_backgroundDim u_param5.x  // 0..1
#define u_mapSize u_param6.xy       // of the maps, pixels
#define u_step u_param7.x           // 0 tones, 1 lines, 2 drawing
#define u_reach u_param8.x          // of the gradient, pixels
#define u_edgeScale u_param9.x      // what is left of edges in a picture too small for that reach, 0..1

// The root draws shadows like lights.
float toneAt(vec2 uv)
{
    vec4 color = readInside(u_input, uv);
    return sqrt(luminance(color.rgb)) * color.a;
}

// x: how strong the edge is, 0..1; y: the same along its middle alone. nine: tones one reach apart.
vec2 lineOf(float nine[9])
{
    vec2 edge = edgeNear(nine);
    float low = mix(0.008, 0.3, u_edgeThreshold * u_edgeThreshold);
    float strength = smoothstep(low, low * 2.2 + 0.05, edge.x);
    return strength * u_edgeScale * vec2(1.0, penLine(edge, 1.3, 1.0 / u_reach));
}

void main()
{
    vec2 size = u_size;
    vec2 mapSize = u_mapSize;
    int stage = int(u_step + 0.5);
    if (stage == 0) {
        float sum = 0.0;
        for (int i = 0; i < 4; ++i)
            sum += toneAt(v_uv + (vec2(i & 1, i >> 1) - 0.5) * 0.5 / mapSize);
        fragColor = vec4(vec3(0.25 * sum), 1.0);
        return;
    }
    vec2 reach = u_reach / size;
    float nine[9];
    if (stage == 1) {
        for (int i = 0; i < 9; ++i)
            nine[i] = readInside(u_input, v_uv + (vec2(i % 3, i / 3) - 1.0) * reach).r;
        fragColor = vec4(vec3(lineOf(nine).x), 1.0);
        return;
    }

    vec4 src = readStackedPicture(u_input, size, v_uv);
    float glow = 0.0;
    for (int i = 0; i < 9; ++i) {
        vec2 maps = readStackedMap(u_input, size, mapSize, v_uv + (vec2(i % 3, i / 3) - 1.0) * reach).rg;
        nine[i] = maps.r;
        glow += maps.g / 9.0; // the mean hides the eight bits of a soft map
    }
    vec2 line = lineOf(nine);
    // Eight bits of a soft map would show as rings in the dark.
    glow = max(glow + (hash21(ivec2(gl_FragCoord.xy), 5u) - 0.5) / 255.0, 0.0);

    // What the glow reaches of the picture is lit by it; the rest sinks into a night of the opposite kind.
    vec3 tint = toLinear(u_glowColor);
    vec3 base = toLinear(src.rgb);
    float tone = linearLuminance(base);
    float dim = 1.0 - (1.0 - u_backgroundDim) * (1.0 - u_backgroundDim);
    vec3 night = mix(base, vec3(tone), 0.3 * dim) * mix(vec3(1.0), vec3(0.85, 0.6, 1.15) + 0.2 * tint, dim);
    vec3 light = night * mix(1.0, 0.035, dim);

    // The current flickers along its way. Where everything is edges, as in gravel, it has to share.
    float flicker = 0.85 + 0.5 * gradientNoise(v_uv * size / (length(size) * 0.02), 21u);
    float power = u_lineIntensity * 1.6;
    float share = 1.0 / (1.0 + 5.0 * max(glow - 0.22, 0.0));
    float halo = glow / (0.55 + glow) / (1.0 + 1.5 * max(glow - 0.3, 0.0));
    light += tint * power * halo * flicker * (0.55 + 1.3 * tone);
    float ribbon = line.x * share;
    float core = line.y * share;
    light += tint * power * ribbon * 0.55;
    light += mix(tint, vec3(1.0), 0.35 + 0.55 * core) * power * core * 1.6 * (0.6 + 0.4 * flicker);

    // Bright light turns white before it clips.
    vec3 shown = 1.0 - exp(-light * 1.25);
    shown = mix(light, shown, smoothstep(0.0, 0.3, max(dim, core + halo)));
    fragColor = vec4(clamp(toEncoded(shown), 0.0, 1.0), src.a);
}
