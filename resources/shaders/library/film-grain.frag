#version 440
// Grain of several films, and the surfaces of paper and canvas. Grain is clumps of dye that vary the density; paper and
// canvas are reliefs lit from the top left.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read, two to seven noises.
#extension GL_GOOGLE_include_directive : require
#include "../common/film.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5;
};
#define u_size u_param0.xy    // width and height, pixels
#define u_style u_param1.x    // 0 classic, 1 fine, 2 pushed, 3 coarse, 4 mottled, 5 paper, 6 canvas
#define u_amount u_param2.x   // depth of the grain, 0..1
#define u_opacity u_param3.x  // share of the grained picture, 0..1
#define u_seed u_param4.x
#define u_scale u_param5.x    // size of a grain of the classic film, pixels

const int kPaper = 5;

// Size against the classic film, strength, share of colour in it, and how much it spares the shadows.
const vec4 kFilms[5] = vec4[](vec4(1.0, 0.23, 0.18, 0.4), vec4(0.7, 0.15, 0.25, 0.5), vec4(1.25, 0.37, 0.32, 0.1),
                              vec4(2.2, 0.31, 0.12, 0.2), vec4(3.8, 0.19, 0.28, 0.7));

float paperHeight(vec2 p, uint seed)
{
    float pulp = valueFbm(p * 0.22, 3.0, seed) + 0.35 * valueNoise(p * 0.9, seed + 7u);
    // Fibres: thin ridges where a stretched noise passes its middle.
    float along = abs(valueNoise(vec2(p.x * 0.05 + p.y * 0.02, p.y * 0.34), seed + 11u) - 0.5);
    float across = abs(valueNoise(vec2(p.x * 0.31, p.y * 0.06 - p.x * 0.03), seed + 12u) - 0.5);
    return pulp + 0.18 * (1.0 - smoothstep(0.0, 0.10, min(along, across)));
}

// Threads over and under each other in turn. Unevenness of the yarn bends the lattice and varies its thickness.
float canvasHeight(vec2 p, uint seed)
{
    vec2 q = p / 3.2 + 0.35 * (vec2(valueNoise(p * 0.06, seed), valueNoise(p * 0.06, seed + 1u)) - 0.5);
    vec2 thread = abs(sin(3.14159265 * q));
    float turn = sin(3.14159265 * (q.x + 0.5)) * sin(3.14159265 * (q.y + 0.5));
    float weft = sqrt(thread.x) * (0.5 + 0.5 * turn);
    float warp = sqrt(thread.y) * (0.5 - 0.5 * turn);
    return max(weft, warp) + 0.3 * valueNoise(p * 0.8, seed + 2u);
}

float surfaceHeight(int style, vec2 p, uint seed)
{
    return style == kPaper ? paperHeight(p, seed) : canvasHeight(p, seed);
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 pixel = v_uv * u_size;
    int style = int(u_style + 0.5);
    uint seed = seedBits(u_seed);
    float scale = max(u_scale, 0.05);
    vec3 rgb;
    if (style < kPaper) {
        vec4 film = kFilms[clamp(style, 0, 4)];
        vec3 grain = filmGrain(pixel, scale * film.x, film.z, seed);
        float spared = 1.0 - film.w * (1.0 - smoothstep(0.0, 0.35, luminance(src.rgb)));
        rgb = withGrain(src.rgb, grain * film.y * spared * 1.15 * u_amount);
    } else {
        // The slope towards the light, over the width of a fibre; when a fibre is less than a pixel it fades.
        vec2 p = pixel / scale;
        float reach = max(0.6, 1.0 / scale);
        float slope = surfaceHeight(style, p + 0.5 * reach, seed) - surfaceHeight(style, p - 0.5 * reach, seed);
        float relief = clamp(slope * (style == kPaper ? 2.0 : 1.1) / reach * min(scale, 1.0), -1.0, 1.0) * u_amount;
        rgb = src.rgb * (1.0 + (style == kPaper ? 0.45 : 0.38) * relief * (1.0 - 0.35 * luminance(src.rgb)));
        rgb += 0.05 * max(relief, 0.0) * (1.0 - src.rgb);
    }
    fragColor = vec4(clamp(mix(src.rgb, rgb, u_opacity), 0.0, 1.0), src.a);
}
