#version 440
// Ink dots over paper. Dots have even distances at every density: each square of two by two cells, of four by four and
// so on gives its cells their turns in an order of its own, so that any number of dots is spread over all squares.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: eleven texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8;
};
#define u_size u_param0.xy         // width and height, pixels
#define u_dotSize u_param1.x       // diameter of a dot in a middle tone, pixels
#define u_density u_param2.x       // 0..1; 0.5 keeps the tone of the picture
#define u_contrast u_param3.x      // 0..1; 0 keeps it
#define u_inkColor u_param4.rgb    // red, green, blue, 0..1
#define u_paperColor u_param5.rgb  // red, green, blue, 0..1
#define u_paperTexture u_param6.x  // 0..1
#define u_seed u_param7.x
#define u_renderScale u_param8.x   // not read, as all sizes come in pixels

const float kPi = 3.14159265;
const float kJitter = 0.72;
const int kLevels = 3;
// Dots of whole sizes cover more than they should, the darker the more: measured over all tones.
const float kGain = 1.2;
const float kDarkGain = 0.7;

// When the cell gets its dot, as the density is raised from 0 to 1.
float turn(ivec2 cell, float random, uint seed)
{
    float order = 0.0;
    float digit = 0.25;
    for (int level = 0; level < kLevels; ++level) {
        ivec2 square = cell >> 1;
        uint bits = pcg(uint(square.x) * 2654435769u + uint(square.y) * 2246822519u + seed + uint(level));
        // One of the eight orders in which opposite corners follow each other: spread out from the second dot on.
        uint corner = uint(cell.x & 1) | (uint(cell.y & 1) << 1u);
        corner ^= bits & 3u;
        uint place = corner == 0u ? 0u : corner == 3u ? 1u : (corner == 1u) == ((bits & 4u) != 0u) ? 2u : 3u;
        order += digit * float(place);
        digit *= 0.25;
        cell = square;
    }
    return order + 4.0 * digit * random;
}

// What scattered dots have to cover, in areas of a cell: with n dots of area a, exp(-n a) of the paper is left, and that
// is the tone.
float neededArea(vec2 uv, float contrast, float exposure)
{
    vec4 c = texture(u_input, uv);
    float tone = mix(1.0, luminance(c.rgb), c.a);
    float curved = tone * tone * (3.0 - 2.0 * tone);
    tone = mix(tone, curved, contrast);
    tone = mix(tone, curved * curved * (3.0 - 2.0 * curved), max(contrast - 0.5, 0.0));
    tone = mix(tone, sqrt(tone), 0.5); // paper, to the eye, is lighter between dots than the mean
    return -log(max(tone, 0.03)) * exposure;
}

void main()
{
    vec2 size = max(u_size, 1.0);
    float pitch = max(u_dotSize, 0.6) * 0.92;
    uint seed = seedBits(u_seed);
    float alpha = texture(u_input, v_uv).a;
    float exposure = exp2(2.4 * (u_density - 0.5));

    vec2 p = v_uv * size / pitch;
    float pixel = 1.0 / pitch;
    ivec2 home = ivec2(floor(p));
    float paper = 1.0; // share that shows
    for (int y = -1; y <= 1; ++y) {
        for (int x = -1; x <= 1; ++x) {
            ivec2 cell = home + ivec2(x, y);
            vec3 random = hash23(cell, seed);
            vec2 centre = vec2(cell) + 0.5 + kJitter * (random.xy - 0.5);
            float area = neededArea(centre * pitch / size, u_contrast, exposure);
            float ink = 1.0 - exp(-area);
            float radius = mix(0.34, 0.78, ink * ink) * mix(0.86, 1.12, random.z);
            float needed = area / (kPi * radius * radius);
            // A dot grows as its turn comes near, so that tones run on without steps.
            float order = turn(cell, random.z, seed + 7u);
            radius *= smoothstep(-0.02, 0.06, needed - order) * (ink > 0.012 ? 1.0 : 0.0);
            radius *= clamp(needed, 1.0, 1.4);
            // Not quite round: three lobes, turned at random.
            vec2 q = p - centre;
            vec2 u = q * inversesqrt(max(dot(q, q), 1e-8));
            vec2 lobes = vec2(u.x * (4.0 * u.x * u.x - 3.0), u.y * (3.0 - 4.0 * u.y * u.y));
            float wobble = 1.0 + 0.2 * dot(lobes, random.xy - 0.5);
            // A dot smaller than a pixel is drawn as wide as one, and as much lighter.
            float drawn = max(radius, 0.6 * pixel);
            float edge = (length(q) - drawn * wobble) / pixel;
            paper *= 1.0 - clamp(0.5 - edge, 0.0, 1.0) * radius * radius / (drawn * drawn);
        }
    }

    // Tooth of the paper, in units of the dots, so that they shrink with them.
    float texture01 = clamp(u_paperTexture, 0.0, 1.0);
    float cloud = fbm(p * 0.3, visibleOctaves(pitch / 0.3, 3.0), seed + 31u);
    vec3 sheet = u_paperColor * (1.0 + 0.22 * texture01 * cloud);
    // Tooth that the ink did not reach.
    float tooth = valueNoise(p * 1.7, seed + 45u) + 0.4 * cloud;
    // Dots too small for the pixels show as the tone that they have from afar.
    float resolved = smoothstep(1.0, 2.2, pitch);
    float area = neededArea(v_uv, u_contrast, exposure);
    float afar = exp(-area * (kGain + kDarkGain * area));
    float covered = (1.0 - mix(afar, paper, resolved)) * (1.0 - texture01 * smoothstep(0.80, 1.1, tooth));
    fragColor = vec4(clamp(mix(sheet, u_inkColor, covered), 0.0, 1.0), alpha);
}
