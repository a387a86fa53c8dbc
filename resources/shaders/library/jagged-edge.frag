#version 440
// Cuts the picture's edges along torn, jagged or punched lines; beyond them is nothing. Each side has its own line, a
// function of the way along it, so that the picture stays in one piece.
// In and out: straight alpha, (0, 0) top left; colours are kept. Cost: one texture read, noise near the edges only.
#extension GL_GOOGLE_include_directive : require
#include "../common/noise.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7;
};
#define u_size u_param0.xy         // width and height, pixels
#define u_edge_size u_param1.x     // how far the line reaches into the picture, pixels
#define u_roughness u_param2.x     // 0, a straight line, to 1
#define u_pattern_size u_param3.x  // length of one form along the side, pixels
#define u_detail u_param4.x        // 0..1, fine forms upon the large ones, or unevenness of regular ones
#define u_style u_param5.x         // 0 torn, 1 deckle, 2 jagged, 3 zigzag, 4 scalloped, 5 perforated
#define u_seed u_param6.x
#define u_softness u_param7.x      // width of the fade at the line, pixels

// Straight lines between points at random distances and heights, 0..1; about one point a unit.
float brokenLine(float x, uint seed)
{
    int cell = int(floor(x));
    vec2 before = vec2(0.0);
    vec2 after = vec2(0.0);
    for (int i = -1; i <= 2; ++i) {
        vec2 random = hash22(ivec2(cell + i, 0), seed);
        vec2 point = vec2(float(cell + i) + 0.85 * random.x, random.y);
        if (point.x <= x || i == -1) {
            before = point;
        } else {
            after = point;
            break;
        }
    }
    return mix(before.y, after.y, clamp((x - before.x) / max(after.x - before.x, 1e-3), 0.0, 1.0));
}

// How far beyond the line a point is, pixels, positive in the picture. `along` and `depth` are its place at a side of
// this length.
float beyondLine(vec2 px, float along, float depth, float side, uint seed)
{
    float edge = u_edge_size;
    float roughness = u_roughness;
    float detail = u_detail;
    float pattern = max(u_pattern_size, 1.0);
    int style = int(u_style + 0.5);

    if (style <= 1) {
        bool torn = style == 0;
        // Fibres stand out sideways, too: noise of both directions, which also frays the line.
        float fine = pattern * (torn ? 0.11 : 0.2);
        float large = fbm(vec2(along / pattern, 0.5), visibleOctaves(pattern, torn ? 1.0 + 5.0 * detail : 2.0), seed);
        float frayed = fbm(px / fine, visibleOctaves(fine, 1.0 + 3.0 * detail), seed + 50u);
        float form = torn ? 1.15 * large + 0.3 * detail * frayed : 0.45 * large + (0.2 + 0.8 * detail) * frayed;
        return depth - edge * max(0.5 + roughness * form, 0.03);
    }
    if (style == 2) {
        float x = along / pattern;
        float form = brokenLine(x, seed) - 0.5 + 0.5 * detail * (brokenLine(4.3 * x, seed + 1u) - 0.5);
        return depth - edge * max(0.5 + 0.75 * roughness * form, 0.03);
    }

    // Whole forms between the corners.
    float count = max(round(side / pattern), 1.0);
    float step = side / count;
    int cell = int(floor(along / step));
    float within = fract(along / step) * 2.0 - 1.0;
    vec2 random = hash22(ivec2(cell, 0), seed) - 0.5;
    if (style == 3) {
        float tip = 0.5 * detail * random.x;
        float rise = within < tip ? (within + 1.0) / (tip + 1.0) : (1.0 - within) / (1.0 - tip);
        return depth - edge * (1.0 - roughness * rise * (1.0 + 0.9 * detail * (random.y - 0.5)));
    }
    if (style == 4) {
        float rise = sqrt(max(1.0 - within * within, 0.0));
        return depth - edge * (1.0 - roughness * rise * (1.0 + 0.9 * detail * (random.y - 0.5)));
    }
    float line = 0.5 * edge;
    float hole = 0.5 * step * mix(0.25, 0.85, roughness) * (1.0 + 0.5 * detail * random.x);
    float sideways = 0.5 * step * (within - 0.3 * detail * random.y);
    return min(depth - line, length(vec2(sideways, depth - line)) - hole);
}

void main()
{
    vec2 size = u_size;
    vec2 px = v_uv * size;
    vec4 src = texture(u_input, v_uv);
    uint seed = seedBits(u_seed);
    bool perforated = u_style > 4.5;
    float reach = (perforated ? 0.5 * u_edge_size + 0.6 * u_pattern_size : 1.3 * u_edge_size) + u_softness + 2.0;

    float beyond = reach;
    vec4 depths = vec4(px.y, size.x - px.x, size.y - px.y, px.x);
    for (int i = 0; i < 4; ++i) {
        bool upright = (i & 1) == 1;
        if (depths[i] < reach)
            beyond = min(beyond, beyondLine(px, upright ? px.y : px.x, depths[i], upright ? size.y : size.x,
                                            seed + uint(100 * i)));
    }
    float width = max(0.7 * fwidth(beyond), 1e-3);
    float covered = smoothstep(-width, width + u_softness, beyond);
    fragColor = vec4(src.rgb, src.a * covered);
}
