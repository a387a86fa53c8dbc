#version 440
// The picture at the bottom of a pool: moving water bends it and throws nets of light on it.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: four texture reads, two cellular patterns, four
// gradient noises.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/cellular.glsl"
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6;
};
#define u_size u_param0.xy         // width and height, pixels
#define u_causticScale u_param1.x  // mesh of the net, pixels
#define u_refraction u_param2.x    // 0..1
#define u_light u_param3.x         // 0..1
#define u_flow u_param4.x          // how much the net is drawn and curled, 0..1
#define u_chroma u_param5.x        // how far colours part, 0..1
#define u_seed u_param6.x          // 0..999

// Bright where two cells meet: a thin line in a wide, faint glow. The colours lie beside each other.
vec3 net(vec2 p, uint seed, float fringe)
{
    Cellular cells = cellular(p, 0.85, seed);
    vec3 d = max(cells.f2 - cells.f1 + fringe * vec3(-1.0, 0.0, 1.0), 0.0);
    vec3 glow = exp(-d * 4.5);
    vec3 line = exp(-d * d * 90.0);
    return 0.3 * glow * glow + line;
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 size = u_size;
    vec2 px = v_uv * size;
    float scale = max(u_causticScale, 1.0);
    uint seed = seedBits(u_seed);
    vec2 p = px / scale;

    vec2 swell = gradientNoise2(p * 0.55, seed);
    vec2 ripple = gradientNoise2(p * 1.6 + swell, seed + 2u);
    vec2 bend = swell + 0.35 * ripple;

    float chroma = u_chroma;
    vec2 shift = bend * scale * 0.55 * u_refraction / size;
    vec3 part = 1.0 + chroma * vec3(-0.16, 0.0, 0.16);
    vec3 seen;
    for (int i = 0; i < 3; ++i) {
        vec4 place = readInside(u_input, v_uv + shift * part[i]);
        seen[i] = mix(src[i], place[i], place.a);
    }

    float flow = u_flow;
    vec2 drawn = p + flow * (1.2 * swell + 0.4 * ripple);
    float fringe = 0.045 * chroma;
    vec3 first = net(drawn, seed + 4u, fringe);
    vec3 second = net(kOctaveStep * 0.72 * drawn + 7.3 + 0.6 * flow * ripple, seed + 5u, fringe);
    vec3 caustic = first * (0.5 + 1.1 * second) + 0.2 * second;

    float light = u_light;
    vec3 base = toLinear(seen);
    vec3 lit = base * (1.0 - 0.38 * light + 1.9 * light * caustic) + vec3(0.6, 0.85, 0.8) * 0.06 * light * caustic;
    lit = lit * (1.0 + lit / 9.0) / (1.0 + 0.35 * lit * light);
    fragColor = vec4(clamp(toEncoded(lit), 0.0, 1.0), src.a);
}
