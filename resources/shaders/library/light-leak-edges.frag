#version 440
// Film that light has reached: a glow from one side, white-hot at the edge, then the inner colour, then the outer one,
// with softer and harder tongues, streaks along its way and a haze over all. Nothing in it is fine: in large
// pictures it is drawn as a small map, and the picture stacked with that map (stacked.glsl) takes it from there.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads; for the map seven noises.
#extension GL_GOOGLE_include_directive : require
#include "../common/film.glsl"
#include "../common/noise.glsl"
#include "../common/stacked.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10, u_param11;
};
#define u_size u_param0.xy      // of the picture, pixels
#define u_start u_param1.xy     // where the light enters, pixels
#define u_end u_param2.xy       // how far it reaches, pixels
#define u_strength u_param3.x   // 0..1
#define u_spread u_param4.x     // to the sides of its way, 0..1
#define u_softness u_param5.x   // 0, clear tongues, to 1, an even glow
#define u_color_a u_param6.rgb  // of the inner light
#define u_color_b u_param7.rgb  // of the outer light
#define u_haze u_param8.x       // 0..1
#define u_streaks u_param9.x    // 0..1
#define u_seed u_param10.x      // 0..999
#define u_mapSize u_param11.xy  // of a map of the light, pixels; below 0 where it is drawn, 0 where there is none

// What reaches the film, as a share of the light that there is room for.
vec3 exposure()
{
    uint seed = seedBits(u_seed);
    float diagonal = length(u_size);
    vec2 way = u_end - u_start;
    float reach = max(length(way), 0.02 * diagonal);
    vec2 along = length(way) > 0.0 ? normalize(way) : vec2(1.0, 0.0);
    vec2 from = v_uv * u_size - u_start;
    float a = dot(from, along) / reach;            // 0 where the light enters, 1 where it ends
    float c = dot(from, vec2(-along.y, along.x)) / diagonal;

    // Tongues: the front of the light is nearer here and farther there.
    vec2 p = from / diagonal;
    vec2 bend = gradientNoise2(p * 1.7, seed);
    float edge = fbm(vec2(c * 3.2, 0.25 * a) + 0.5 * bend, 3.0, seed + 2u);
    float soft = u_softness;
    float front = a + mix(1.0, 0.35, soft) * edge - 0.25 * bend.x;
    float side = c / mix(0.08, 0.75, u_spread) + 0.35 * bend.y;
    float beside = exp(-side * side);

    // Behind where it enters, light stays as bright as there.
    float x = max(front, 0.0);
    float wide = exp(-mix(3.6, 3.0, soft) * x * x) * beside;
    float core = exp(-mix(9.0, 5.0, soft) * x * x) * beside;
    float sharp = smoothstep(0.95, 0.25, front) * beside;
    float glow = mix(0.55 * wide + 0.45 * sharp, wide, soft);

    // Streaks run with the light, finer and coarser ones, and fade out along it.
    float lines = 0.75 * gradientNoise(vec2(c * 17.0, a * 0.5) + 0.7 * bend, seed + 5u)
        + 0.25 * gradientNoise(vec2(c * 46.0, a * 0.4) + 1.2 * bend, seed + 6u);
    float streak = clamp(1.0 + u_streaks * (2.2 * lines - 0.15), 0.0, 2.5);
    glow *= streak;
    core *= mix(1.0, streak, 0.5);

    vec3 inner = toLinear(u_color_a);
    vec3 outer = toLinear(u_color_b);
    vec3 light = outer * glow * 0.8 + inner * (0.22 * glow * glow + 1.25 * core * core)
        + vec3(0.8, 0.72, 0.6) * pow(core, 5.0);
    vec3 haze = mix(outer, inner, 0.45) * u_haze * (0.08 + 0.22 * exp(-1.1 * max(a, 0.0)));
    return 1.0 - exp(-(light * 1.5 * u_strength + haze * 1.4)); // film saturates, it does not clip
}

void main()
{
    vec4 src;
    vec3 exposed;
    if (u_mapSize.x > 0.5) {
        src = readStackedPicture(u_input, u_size, v_uv);
        vec3 root = readStackedMap(u_input, u_size, u_mapSize, v_uv).rgb;
        exposed = root * root;
    } else {
        src = texture(u_input, v_uv);
        exposed = exposure();
        if (u_mapSize.x < -0.5) {
            // The root spends the levels of a byte where the eye does.
            fragColor = vec4(clamp(dithered(sqrt(exposed), gl_FragCoord.xy), 0.0, 1.0), 1.0);
            return;
        }
    }
    vec3 base = toLinear(src.rgb);
    vec3 rgb = toEncoded(base + exposed * (1.0 - base));
    fragColor = vec4(clamp(dithered(rgb, gl_FragCoord.xy), 0.0, 1.0), src.a);
}
