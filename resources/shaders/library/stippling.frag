#version 440
// Ink dots over paper. Dots have even distances at every density: each square of two by two cells, of four by four and
// so on gives its cells their turns in an order of its own, so that any number of dots is spread over all squares.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: ten texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0;  // size: width and height, pixels
    vec4 u_param1;  // dotSize: diameter of a dot in a middle tone, pixels
    vec4 u_param2;  // density: 0..1; 0.5 keeps the tone of the picture
    vec4 u_param3;  // contrast: 0..1; 0 keeps it
    vec4 u_param4;  // inkColor: red, green, blue, 0..1
    vec4 u_param5;  // paperColor: red, green, blue, 0..1
    vec4 u_param6;  // paperTexture: 0..1
    vec4 u_param7;  // seed
    vec4 u_param8;  // renderScale: pixels for a unit of the layer
};

const float kPi = 3.14159265;
const float kJitter = 0.72;
const int kLevels = 4;

// When the cell gets its dot, as the density is raised from 0 to 1.
float turn(ivec2 cell, uint seed)
{
    float order = 0.0;
    float digit = 0.25;
    for (int level = 0; level < kLevels; ++level) {
        ivec2 square = cell >> 1;
        uint bits = pcg(uint(square.x) + pcg(uint(square.y) + seed + uint(level)));
        // One of the eight orders in which opposite corners follow each other: spread out from the second dot on.
        uint corner = uint(cell.x & 1) | (uint(cell.y & 1) << 1u);
        corner ^= bits & 3u;
        uint place = corner == 0u ? 0u : corner == 3u ? 1u : (corner == 1u) == ((bits & 4u) != 0u) ? 2u : 3u;
        order += digit * float(place);
        digit *= 0.25;
        cell = square;
    }
    return order + 2.0 * digit;
}

// How dark a tone is wanted, 0..1, of light by area.
float wantedInk(vec2 uv, float contrast, float density)
{
    vec4 c = readInside(u_input, uv);
    float tone = mix(1.0, luminance(c.rgb), c.a);
    float curved = tone * tone * (3.0 - 2.0 * tone);
    tone = mix(tone, curved, contrast);
    tone = mix(tone, curved * curved * (3.0 - 2.0 * curved), max(contrast - 0.5, 0.0));
    float ink = 1.0 - pow(tone, 0.75);
    return clamp(1.0 - pow(1.0 - ink, exp2(2.4 * (density - 0.5))), 0.0, 0.96);
}

void main()
{
    vec2 size = max(u_param0.xy, 1.0);
    float pitch = max(u_param1.x, 0.6) * 0.92;
    uint seed = seedBits(u_param7.x);
    float alpha = texture(u_input, v_uv).a;

    vec2 p = v_uv * size / pitch;
    float pixel = 1.0 / pitch;
    ivec2 home = ivec2(floor(p));
    float paper = 1.0; // share that shows
    for (int y = -1; y <= 1; ++y) {
        for (int x = -1; x <= 1; ++x) {
            ivec2 cell = home + ivec2(x, y);
            vec3 random = hash23(cell, seed);
            vec2 centre = vec2(cell) + 0.5 + kJitter * (random.xy - 0.5);
            float ink = wantedInk(centre * pitch / size, u_param3.x, u_param2.x);
            // Scattered dots of area a and number n cover 1 - exp(-n a).
            float radius = mix(0.34, 0.78, ink * ink) * mix(0.86, 1.12, random.z);
            float needed = -log(1.0 - ink) / (kPi * radius * radius);
            float order = turn(cell, seed + 7u);
            // A dot grows as its turn comes near, so that tones run on without steps.
            radius *= smoothstep(-0.02, 0.06, needed - order) * (ink > 0.012 ? 1.0 : 0.0);
            radius *= max(1.0, min(needed, 1.4));
            vec2 q = p - centre;
            float wobble = 1.0 + 0.09 * sin(3.0 * atan(q.y, q.x + 1e-5) + 6.28 * random.x)
                + 0.05 * sin(5.0 * atan(q.y, q.x + 1e-5) + 6.28 * random.y);
            float edge = (length(q) - radius * wobble) / pixel;
            paper *= 1.0 - clamp(0.5 - edge, 0.0, 1.0) * step(0.03, radius);
        }
    }

    // Fibres and tooth, in units of the dots, so that they shrink with them.
    float texture01 = clamp(u_param6.x, 0.0, 1.0);
    float cloud = fbm(p * 0.22, visibleOctaves(pitch / 0.22, 5.0), seed + 31u);
    float fibre = gradientNoise(vec2(p.x * 0.12 + cloud, p.y * 1.1), seed + 40u);
    vec3 sheet = u_param5.rgb * (1.0 + texture01 * (0.16 * cloud + 0.05 * fibre));
    float covered = (1.0 - paper) * (1.0 - texture01 * 0.35 * smoothstep(0.1, 0.5, cloud + 0.3 * fibre));
    fragColor = vec4(clamp(mix(sheet, u_param4.rgb, covered), 0.0, 1.0), alpha);
}
