#version 440
// A stencil print in two or three spot colours: each ink a screen of its own angle, out of register, uneven and grainy,
// over warm uncoated paper. Inks are see-through: where they overlap, they multiply.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: four texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7;
};
#define u_size u_param0.xy            // width and height, pixels
#define u_palette u_param1.x          // index of the inks below
#define u_screenScale u_param2.x      // pitch of the screens, pixels
#define u_misregistration u_param3.x  // shift of the inks, pixels
#define u_inkDensity u_param4.x       // 0..1
#define u_grain u_param5.x            // 0..1
#define u_seed u_param6.x
#define u_renderScale u_param7.x      // not read, as all sizes come in pixels

// Three inks a palette; a white one is none.
const vec3 kInks[18] = vec3[](
    vec3(1.00, 0.28, 0.52), vec3(0.10, 0.42, 0.76), vec3(1.00, 0.88, 0.16),  // pink, blue, yellow
    vec3(1.00, 0.28, 0.40), vec3(0.05, 0.33, 0.60), vec3(1.0),               // fluorescent pink, blue
    vec3(0.98, 0.42, 0.16), vec3(0.00, 0.40, 0.40), vec3(1.0),               // orange, teal
    vec3(0.95, 0.26, 0.22), vec3(0.13, 0.13, 0.15), vec3(1.0),               // red, black
    vec3(0.98, 0.74, 0.13), vec3(0.32, 0.18, 0.55), vec3(1.0),               // sunflower, violet
    vec3(0.22, 0.72, 0.52), vec3(0.93, 0.36, 0.45), vec3(0.14, 0.20, 0.42)); // mint, coral, midnight
const float kAngles[3] = float[](1.30899694, 0.26179939, 0.78539816);
const vec3 kPaper = vec3(0.965, 0.95, 0.915);
const vec3 kTone = vec3(0.299, 0.587, 0.114);

// Optical density; the fourth component, of the luminance, makes the fit keep the tones first.
vec4 density(vec3 color)
{
    vec3 c = max(color, 0.07);
    return vec4(-log(c), -0.8 * log(dot(c, kTone)));
}

// How much of each ink comes nearest to a colour: a least-squares fit with shares of 0..1, by Gauss-Seidel steps.
vec3 separation(vec3 color, vec4 inks[3], float weight)
{
    vec4 wanted = density(color) * weight;
    vec3 goal = vec3(dot(wanted, inks[0]), dot(wanted, inks[1]), dot(wanted, inks[2]));
    float ab = dot(inks[0], inks[1]);
    float ac = dot(inks[0], inks[2]);
    float bc = dot(inks[1], inks[2]);
    vec3 norm = vec3(dot(inks[0], inks[0]), dot(inks[1], inks[1]), dot(inks[2], inks[2])) + 0.05;
    vec3 share = vec3(0.3);
    for (int step = 0; step < 8; ++step) {
        share.x = clamp((goal.x - ab * share.y - ac * share.z) / norm.x, 0.0, 1.0);
        share.y = clamp((goal.y - ab * share.x - bc * share.z) / norm.y, 0.0, 1.0);
        share.z = clamp((goal.z - ac * share.x - bc * share.y) / norm.z, 0.0, 1.0);
    }
    return share;
}

// The share of ink at a place of the screen, which has this share on average.
float screened(vec2 pixel, float pitch, float angle, float share)
{
    vec2 q = rotation(angle) * pixel / pitch * 6.28318531;
    // The product of waves gives round dots in light tones, squares at one half and round holes in dark ones.
    float wave = 0.5 + 0.25 * (cos(q.x) + cos(q.y));
    // The wave's own distribution: about this much of it lies within 0.5 of its nearer end.
    float part = min(share, 1.0 - share);
    float threshold = part * (1.57 - 1.14 * part);
    threshold = share < 0.5 ? 1.0 - threshold : threshold;
    float soft = clamp(1.6 / pitch, 0.04, 1.0);
    threshold = mix(-soft, 1.0 + soft, threshold);
    return smoothstep(threshold - soft, threshold + soft, wave);
}

void main()
{
    vec2 size = max(u_size, 1.0);
    int palette = int(clamp(floor(u_palette + 0.5), 0.0, 5.0));
    float pitch = max(u_screenScale, 1.0);
    float grain = clamp(u_grain, 0.0, 1.0);
    uint seed = seedBits(u_seed);
    float alpha = texture(u_input, v_uv).a;
    vec2 pixel = v_uv * size;
    vec2 place = pixel / pitch;

    vec4 inks[3];
    for (int i = 0; i < 3; ++i)
        inks[i] = density(kInks[3 * palette + i]);
    float strength = mix(0.45, 1.25, u_inkDensity);

    vec3 print = kPaper * (1.0 + 0.05 * grain * gradientNoise(place * 0.35, seed + 50u));
    for (int i = 0; i < 3; ++i) {
        vec3 random = hash23(ivec2(i, palette), seed);
        float angle = 6.28318531 * (random.x + float(i) / 3.0);
        vec2 shift = vec2(cos(angle), sin(angle)) * u_misregistration * mix(0.6, 1.0, random.y);
        // Paper never feeds quite straight.
        vec2 fromMiddle = pixel - 0.5 * size;
        shift += vec2(-fromMiddle.y, fromMiddle.x) * (random.z - 0.5) * 1.2 * u_misregistration / max(length(size), 1.0);
        vec4 src = readInside(u_input, (pixel - shift) / size);
        vec3 color = mix(vec3(1.0), src.rgb, src.a);
        float share = separation(color, inks, strength)[i];

        uint own = seed + 11u * uint(i + 1);
        // Uneven rollers in large, dry spots in small.
        float roller = fbm(place * 0.035, 2.0, own);
        float speck = valueNoise(place * 2.3, own + 4u);
        float fine = valueNoise(place * 5.1, own + 5u);
        share = clamp(share * (1.0 + 0.35 * grain * roller), 0.0, 1.0);
        float ink = screened(pixel - shift, pitch, kAngles[i], share);
        ink *= 1.0 - grain * smoothstep(0.62, 0.95, 0.65 * speck + 0.35 * fine + 0.25 * roller);
        ink *= mix(1.0, mix(0.80, 1.0, fine), grain);
        print *= mix(vec3(1.0), kInks[3 * palette + i], ink);
    }
    fragColor = vec4(clamp(print, 0.0, 1.0), alpha);
}
