#version 440
// A cyanotype drawing: light lines along the edges of the picture, hatched shadows and a grid on unevenly coated paper.
// Two passes: the first makes a map of tones, to be smoothed; the second reads it beside the picture
// (common/stacked.glsl).
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: four reads a pixel of the map, ten a pixel.
#extension GL_GOOGLE_include_directive : require
#include "../common/edges.glsl"
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
#include "../common/shapes.glsl"
#include "../common/stacked.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10, u_param11;
};
#define u_size u_param0.xy         // of the picture, pixels
#define u_texelSize u_param1.xy    // one pixel in 0..1
#define u_tint u_param2.rgb        // the paper's colour
#define u_lineColor u_param3.rgb   // line colour
#define u_intensity u_param4.x     // of the shading, 0..1
#define u_edgeStrength u_param5.x  // 0..1
#define u_edgeRadius u_param6.x    // reach of the gradient, pixels; 0 makes the map
#define u_tintMix u_param7.x       // share of the paper against the picture's colours, 0..1
#define u_gridSize u_param8.x      // side of a small square, pixels, above 0
#define u_gridOpacity u_param9.x   // 0..1
#define u_gridColor u_param10.rgb  // grid colour
#define u_mapSize u_param11.xy     // of the map of tones, pixels

// How much of a line `width` pixels wide covers a pixel at a distance from its middle; thinner ones fade.
float lineCoverage(float distanceInPixels, float width)
{
    return coverage(abs(distanceInPixels) - 0.5 * max(width, 1.0)) * min(width, 1.0);
}

float gridLine(vec2 px, float spacing, float width)
{
    vec2 nearest = abs(px - spacing * floor(px / spacing + 0.5));
    return max(lineCoverage(nearest.x, width), lineCoverage(nearest.y, width));
}

void main()
{
    vec2 size = u_size;
    if (u_edgeRadius <= 0.0) {
        float sum = 0.0;
        for (int i = 0; i < 4; ++i)
            sum += coveredLuminance(u_input, v_uv + (vec2(i & 1, i >> 1) - 0.5) * 0.5 / u_mapSize);
        fragColor = vec4(vec3(0.25 * sum), 1.0);
        return;
    }

    vec4 src = readStackedPicture(u_input, size, v_uv);
    vec2 px = v_uv * size;
    float unit = length(size) / 1000.0; // what line widths and the paper are measured by, pixels

    // An edge counts against the brightness around it, so that shadows are drawn as well.
    float reach = u_edgeRadius;
    float tones[9];
    float tone = 0.0;
    for (int i = 0; i < 9; ++i) {
        vec2 uv = v_uv + (vec2(i % 3, i / 3) - 1.0) * reach * u_texelSize;
        tones[i] = readStackedMap(u_input, size, u_mapSize, uv).r;
        tone += tones[i] / 9.0;
    }
    vec2 edge = edgeNear(tones);
    float strength = edge.x / (0.3 + tone);
    float low = mix(0.2, 0.006, sqrt(u_edgeStrength));
    float line = smoothstep(low, low * 2.5 + 0.05, strength) * penLine(edge, 1.3, 1.0 / reach)
        * smoothstep(0.0, 0.1, u_edgeStrength);

    // The coating: washed on by brush, never quite even.
    float wash = fbm(px / (90.0 * unit), 3.0, 11u) + 0.5 * gradientNoise(px * vec2(1.0, 0.12) / (9.0 * unit), 12u);
    vec3 paper = u_tint * (1.0 + 0.16 * wash);
    paper = mix(paper, toEncoded(toLinear(paper) * 0.45), smoothstep(0.5, 1.25, length((v_uv - 0.5) * 1.7)) * 0.8);

    // Shading: the paper takes the tones, and hatching fills the dark ones, denser as they deepen.
    float intensity = u_intensity;
    vec3 lightest = mix(u_tint, u_lineColor, 0.42);
    vec3 toned = tone < 0.5 ? paper * mix(0.5, 1.0, tone * 2.0) : mix(paper, lightest, tone * 2.0 - 1.0);
    vec3 rgb = mix(paper, toned, intensity);
    float spacing = 3.6 * unit;
    float slant = (px.x + px.y) * 0.70710678;
    float cross = (px.x - px.y) * 0.70710678;
    float pencil = 0.75 + 0.5 * gradientNoise(px / (5.0 * unit), 13u);
    float first = lineCoverage(slant - spacing * floor(slant / spacing + 0.5), 0.42 * unit)
        * (1.0 - smoothstep(0.2, 0.42, tone));
    float second = lineCoverage(cross - spacing * floor(cross / spacing + 0.5), 0.42 * unit)
        * (1.0 - smoothstep(0.08, 0.2, tone));
    float hatch = max(first, second) * pencil * intensity * 0.4;

    rgb = mix(src.rgb, rgb, u_tintMix);
    float grid = max(0.5 * gridLine(px, u_gridSize, 0.6 * unit), gridLine(px, u_gridSize * 5.0, 0.8 * unit));
    rgb = mix(rgb, u_gridColor, grid * u_gridOpacity);
    rgb = mix(rgb, u_lineColor, clamp(hatch, 0.0, 1.0));
    rgb = mix(rgb, u_lineColor, line * (0.9 + 0.2 * wash));
    fragColor = vec4(clamp(rgb, 0.0, 1.0), src.a);
}
