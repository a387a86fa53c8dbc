#version 440
// Square blocks in three passes: the first two draw one pixel for each block, its mean and then its colour in a
// palette; the third enlarges them with edges that are sharp to a pixel, wherever they fall.
// In and out: straight alpha, (0, 0) top left; alpha becomes that of the block. Cost: up to 100 texture reads a block,
// four a pixel.
#extension GL_GOOGLE_include_directive : require
#include "../common/sampling.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8;
};
#define u_size u_param0.xy       // of the picture, pixels
#define u_block u_param1.x       // side, pixels
#define u_palette u_param2.x     // 0 original, 1 handheld, 2 8-bit, 3 console, 4 computer, 5 amber, 6 black and white
#define u_saturation u_param3.x  // 1 changes nothing, 0..2
#define u_contrast u_param4.x    // 1 changes nothing, 0.5..2
#define u_dither u_param5.x      // 0..1
#define u_outline u_param6.x     // 0..1
#define u_gridSize u_param7.xy   // blocks
#define u_step u_param8.x        // 0 means, 1 colours, 2 enlarges

const vec3 kHandheld[4] = vec3[](vec3(0.059, 0.133, 0.106), vec3(0.173, 0.345, 0.216), vec3(0.486, 0.627, 0.216),
                                 vec3(0.745, 0.812, 0.416));
const vec3 kAmber[4] = vec3[](vec3(0.075, 0.043, 0.024), vec3(0.404, 0.2, 0.035), vec3(0.784, 0.435, 0.055),
                              vec3(1.0, 0.769, 0.29));
const vec3 kConsole[16] =
    vec3[](vec3(0.071, 0.067, 0.11), vec3(0.957, 0.941, 0.886), vec3(0.149, 0.2, 0.4), vec3(0.255, 0.467, 0.753),
           vec3(0.533, 0.769, 0.906), vec3(0.125, 0.318, 0.235), vec3(0.345, 0.588, 0.267), vec3(0.698, 0.804, 0.376),
           vec3(0.337, 0.204, 0.176), vec3(0.678, 0.447, 0.286), vec3(0.918, 0.718, 0.545), vec3(0.698, 0.2, 0.216),
           vec3(0.902, 0.51, 0.204), vec3(0.973, 0.843, 0.396), vec3(0.396, 0.247, 0.471), vec3(0.486, 0.494, 0.541));
// Ordered dithering: Bayer, "An optimum method for two-level rendition of continuous-tone pictures", 1973.
const float kBayer[16] = float[](0.0, 8.0, 2.0, 10.0, 12.0, 4.0, 14.0, 6.0, 3.0, 11.0, 1.0, 9.0, 15.0, 7.0, 13.0, 5.0);

vec3 nearest(vec3 candidate, vec3 lab, vec3 best)
{
    vec3 a = encodedToOklab(candidate) - lab;
    vec3 b = encodedToOklab(best) - lab;
    return dot(a, a) < dot(b, b) ? candidate : best;
}

// Colours to choose from are few, so lightness leads and the pattern of the dither fills the gaps.
vec3 inPalette(vec3 color, float pattern)
{
    int palette = int(u_palette + 0.5);
    float amount = u_dither;
    if (palette == 0) {
        vec3 coarse = clamp(floor(color * 5.0 + 0.5 + pattern) / 5.0, 0.0, 1.0);
        return mix(color, coarse, amount);
    }
    if (palette == 2) {
        vec3 steps = vec3(7.0, 7.0, 3.0);
        return clamp(floor(color * steps + 0.5 + pattern * amount) / steps, 0.0, 1.0);
    }
    if (palette == 4)
        return step(0.5, color + pattern * amount * 0.7);
    if (palette == 6)
        return vec3(step(0.5, luminance(color) + pattern * amount * 0.95));
    if (palette == 1 || palette == 5) {
        int index = int(clamp(floor(luminance(color) * 3.0 + 0.5 + pattern * amount), 0.0, 3.0));
        return palette == 1 ? kHandheld[index] : kAmber[index];
    }
    vec3 lab = encodedToOklab(color);
    lab.x += pattern * amount * 0.2;
    vec3 best = kConsole[0];
    for (int i = 1; i < 16; ++i)
        best = nearest(kConsole[i], lab, best);
    return best;
}

vec4 meanOfBlock()
{
    vec2 cell = floor(v_uv * u_gridSize);
    int count = int(clamp(ceil(u_block * 0.5), 1.0, 10.0));
    vec4 sum = vec4(0.0);
    for (int y = 0; y < count; ++y)
        for (int x = 0; x < count; ++x)
            sum += premultiplied(readInside(u_input, (cell + (vec2(x, y) + 0.5) / float(count)) / u_gridSize));
    sum /= float(count * count);
    return vec4(straight(sum).rgb, sum.a);
}

vec4 blockAt(ivec2 cell) { return texelFetch(u_input, clamp(cell, ivec2(0), ivec2(u_gridSize + 0.5) - 1), 0); }

vec4 colorOfBlock()
{
    ivec2 cell = ivec2(v_uv * u_gridSize);
    vec4 here = blockAt(cell);
    vec4 around[4] = vec4[](blockAt(cell + ivec2(1, 0)), blockAt(cell - ivec2(1, 0)), blockAt(cell + ivec2(0, 1)),
                            blockAt(cell - ivec2(0, 1)));
    // The mean over a block is soft: a little sharpening gives small things back their blocks.
    vec3 mean = vec3(0.0);
    float darker = 0.0;
    float tone = luminance(here.rgb);
    for (int i = 0; i < 4; ++i) {
        mean += 0.25 * mix(here.rgb, around[i].rgb, around[i].a);
        darker = max(darker, mix(1.0, luminance(around[i].rgb), around[i].a) - tone);
    }
    vec3 rgb = here.rgb + 0.3 * (here.rgb - mean);
    rgb = mix(vec3(luminance(rgb)), rgb, u_saturation);
    rgb = clamp(contrasted(rgb, u_contrast), 0.0, 1.0);

    // Outlines as pixel artists set them: on the dark side of an edge, in a deep shade of the colour.
    float line = smoothstep(0.08, 0.2, darker) * u_outline;
    rgb *= mix(vec3(1.0), vec3(0.16, 0.13, 0.2), line);

    float pattern = (kBayer[(cell.y & 3) * 4 + (cell.x & 3)] + 0.5) / 16.0 - 0.5;
    return vec4(inPalette(rgb, pattern), here.a);
}

// What a pixel sees of the blocks under it, read between the two nearest.
vec4 enlarged()
{
    vec2 footprint = u_gridSize / u_size;
    vec2 far = v_uv * u_gridSize + 0.5 * footprint;
    vec2 cell = floor(far);
    vec2 share = clamp((far - cell) / footprint, 0.0, 1.0);
    return readSmooth(u_input, (cell - 0.5 + share) / u_gridSize);
}

void main()
{
    int stage = int(u_step + 0.5);
    if (stage == 0)
        fragColor = meanOfBlock();
    else if (stage == 1)
        fragColor = colorOfBlock();
    else
        fragColor = enlarged();
}
