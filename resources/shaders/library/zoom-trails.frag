#version 440
// Smears the picture towards and away from a centre, around which it stays sharp. Meant to be run several times, each
// time over a longer way: a pass reads few places, and what lies between them the pass before has joined.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: 11 texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7;
};
#define u_size u_param0.xy          // width and height, pixels
#define u_center u_param1.xy        // pixels
#define u_focusRadius u_param2.x    // of the sharp disc, pixels
#define u_length u_param3.x         // of the way to the centre that a trail takes, 0..1
#define u_amount u_param4.x         // 0..1
#define u_focusSoftness u_param5.x  // 0, a hard rim of the disc, to 1, no rim to be seen
#define u_glow u_param6.x           // how much more than their share bright places leave in a trail, 0..1
#define u_colorSplit u_param7.x     // of the trail's ends into red and blue, 0..1

const int kPlaces = 10;
const float kGlowGain = 14.0;


void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 center = u_center / u_size;
    vec2 fromCenter = v_uv - center;
    float distance = length(fromCenter * u_size);

    // 0 in the sharp disc, 1 outside it.
    float rim = u_focusRadius * u_focusSoftness + 0.004 * length(u_size);
    float inner = u_focusRadius - 0.35 * rim;
    float outer = u_focusRadius + 1.6 * rim;
    float outside = smoothstep(inner, outer, distance);
    if (outside <= 0.0) {
        fragColor = src;
        return;
    }
    // Steps of equal ratio: passes of different lengths then add up.
    float way = log(1.0 - min(u_length, 0.95)) * outside;

    float places = float(kPlaces);
    float nearer = exp(0.5 * way / places);
    float next = nearer * nearer;
    float glow = kGlowGain * u_glow;
    vec3 split = u_colorSplit * vec3(1.0, 0.0, -1.0);
    vec3 sum = vec3(0.0);
    vec3 total = vec3(0.0);
    for (int i = 0; i < kPlaces; ++i) {
        vec4 place = texture(u_input, center + fromCenter * nearer);
        // What is sharp leaves no trail: no pass has smeared it, and it would show as often as it is read.
        float smeared = clamp((distance * nearer - inner) / (outer - inner), 0.0, 1.0);
        float bright = luminance(place.rgb);
        bright *= bright;
        float share = place.a * smeared * smeared * (1.0 + glow * bright * bright);
        vec3 weight = share * (1.0 + (1.0 - (2.0 * float(i) + 1.0) / places) * split);
        sum += place.rgb * weight;
        total += weight;
        nearer *= next;
    }
    vec3 trail = mix(src.rgb, sum / max(total, 1e-4), step(1e-3, total));
    fragColor = vec4(mix(src.rgb, trail, u_amount * outside), src.a);
}
