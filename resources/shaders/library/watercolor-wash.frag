#version 440
// Washes of transparent pigment on rough paper: borders wander, wet edges dry dark, light parts stay paper.
// The model of density is that of Bousseau, Kaplan, Thollot and Sillion, "Interactive watercolor rendering with
// temporal coherence and abstraction", 2006: c - (c - c * c) * (d - 1) is colour c with d times the pigment.
// In and out: straight alpha, (0, 0) top left; alpha is kept. The input should be simplified to patches.
// Cost: 14 texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6;
};
#define u_size u_param0.xy        // width and height, pixels
#define u_renderScale u_param1.x  // pixels for a thousandth of the diagonal
#define u_bleed u_param2.x        // how far borders wander and colour runs, 0..1
#define u_pigment u_param3.x      // strength of colour, dried edges and granulation, 0..1
#define u_detail u_param4.x       // 0..1
#define u_paper u_param5.x        // relief of the paper, 0..1
#define u_blend u_param6.x        // how much wet washes run into one another, 0..1

const vec3 kPaper = vec3(0.985, 0.975, 0.95);

vec3 pigmented(vec3 color, float amount) { return color - (color - color * color) * (amount - 1.0); }

// Two value noises for little more than one.
vec2 valueNoises(vec2 p, uint seed)
{
    vec2 cell = floor(p);
    vec2 fade = quinticFade(p - cell);
    uvec4 bits = cornerHashes(ivec2(cell), seed);
    vec4 high = vec4(bits >> 16u);
    vec4 low = vec4(bits & 0xffffu);
    vec4 left = mix(vec4(high.xz, low.xz), vec4(high.yw, low.yw), fade.x);
    return mix(left.xz, left.yw, fade.y) / 65536.0;
}

void main()
{
    vec2 size = max(u_size, 1.0);
    float unit = max(u_renderScale, 0.001);
    float bleed = clamp(u_bleed, 0.0, 1.0);
    float pigment = clamp(u_pigment, 0.0, 1.0);
    float detail = clamp(u_detail, 0.0, 1.0);
    float wet = clamp(u_blend, 0.0, 1.0);
    float alpha = texture(u_input, v_uv).a;
    vec2 p = v_uv * size / unit; // thousandths of the diagonal

    // The paper: hollows and tooth of cold-pressed sheets.
    float tooth = fbm(p / 3.0, visibleOctaves(3.0 * unit, 3.0), 11u)
        + 0.45 * gradientNoise(kOctaveStep * p / 2.1, 12u) * clamp(unit - 0.3, 0.0, 1.0);

    // Borders wander: widely with the water, finely with the tooth.
    vec2 wide = 0.65 * (valueNoises(p / 26.0, 21u) - 0.5)
        + 0.325 * (valueNoises(kOctaveStep * p / 26.0 + kOctaveShift, 22u) - 0.5);
    vec2 fine = 0.6 * vec2(gradientNoise(p / 6.0, 23u), gradientNoise(p / 6.0, 24u));
    float calm = mix(1.0, 0.3, detail);
    vec2 wander = calm * (wide * (3.0 + 13.0 * bleed) + fine * (1.2 + 5.0 * bleed) + tooth * 0.5);
    vec2 place = v_uv + wander * unit / size;

    vec3 here = readInside(u_input, place).rgb;
    // Two rings around: what the wash borders on.
    float reach = mix(1.1, 2.0, bleed) * mix(1.3, 0.8, detail);
    vec3 near = vec3(0.0);
    vec3 far = vec3(0.0);
    for (int i = 0; i < 6; ++i) {
        float angle = (float(i) + 0.5) * 1.04719755;
        vec2 d = vec2(cos(angle), sin(angle)) * unit / size;
        near += texture(u_input, place + d * reach).rgb / 6.0;
        far += texture(u_input, place - d * (reach * 3.4)).rgb / 6.0;
    }

    // Wet in wet: here and there a border is lost, in large forms.
    float wetness = smoothstep(0.62 - 0.75 * wet, 0.85 - 0.55 * wet, 0.5 + 1.1 * (valueNoise(p / 70.0, 31u) - 0.5) + 0.4 * wide.x) * min(wet * 2.0, 1.0);
    vec3 color = mix(here, mix(near, far, 0.6), wetness * 0.85);

    // Pigment flows to the border of a wash and dries there: the darker side of an edge.
    float tone = luminance(here);
    float pooled = max(luminance(near) - tone, 0.0) * 8.0 + max(luminance(far) - tone, 0.0) * 0.9;
    pooled = pooled / (1.0 + 1.6 * pooled) * (1.0 - 0.8 * wetness);
    // A lighter fringe outside, where water pushed pigment away.
    float fringe = clamp(max(tone - luminance(near), 0.0) * 1.6, 0.0, 0.5);

    // Highlights stay paper, and shadows are never black: the thinnest and the thickest wash.
    color = pow(color, vec3(mix(0.6, 0.95, pigment)));
    color = saturated(color, 1.0 + 0.55 * pigment);
    vec3 wash = mix(color, vec3(1.0), mix(0.24, 0.02, pigment));
    float light = luminance(wash);
    float bare = smoothstep(0.70, 0.93, light + 0.10 * wide.x + 0.10 * fine.x);
    wash = mix(wash, vec3(1.0), bare * 0.9);
    wash = max(wash, vec3(0.04, 0.045, 0.06));

    // How much pigment lies here: pools, flow, grains in the hollows.
    float flow = (valueNoise(kOctaveStep * p / 90.0, 41u) - 0.5) + 0.4 * (wide.x - wide.y) + 0.35 * gradientNoise(p / 13.0, 42u);
    float granulation = -tooth * (0.35 + 1.1 * pigment) * u_paper;
    float amount = 1.0 + pooled * (0.9 + 1.6 * pigment) - 0.5 * fringe + flow * (0.3 + 0.6 * pigment) + granulation * 1.2;
    wash = clamp(pigmented(wash, clamp(amount, 0.15, 3.2)), 0.0, 1.0);

    // Light across the paper.
    float slope = 0.55 * unit * (dFdx(tooth) + dFdy(tooth));
    vec3 sheet = kPaper * (1.0 + u_paper * 0.22 * slope);
    fragColor = vec4(clamp(wash * sheet, 0.0, 1.0), alpha);
}
