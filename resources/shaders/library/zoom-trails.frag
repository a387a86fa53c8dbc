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
    vec4 u_param0;  // size: width and height, pixels
    vec4 u_param1;  // center: pixels
    vec4 u_param2;  // focusRadius: of the sharp disc, pixels
    vec4 u_param3;  // length: of the way to the centre that a trail takes, 0..1
    vec4 u_param4;  // amount: 0..1
    vec4 u_param5;  // focusSoftness: 0, a hard rim of the disc, to 1, no rim to be seen
    vec4 u_param6;  // glow: how much more than their share bright places leave in a trail, 0..1
    vec4 u_param7;  // colorSplit: of the trail's ends into red and blue, 0..1
};

const int kPlaces = 10;
const float kGlowGain = 14.0;


void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 center = u_param1.xy / u_param0.xy;
    vec2 fromCenter = v_uv - center;
    float distance = length(fromCenter * u_param0.xy);

    // 0 in the sharp disc, 1 outside it.
    float rim = u_param2.x * u_param5.x + 0.004 * length(u_param0.xy);
    float inner = u_param2.x - 0.35 * rim;
    float outer = u_param2.x + 1.6 * rim;
    float outside = smoothstep(inner, outer, distance);
    if (outside <= 0.0) {
        fragColor = src;
        return;
    }
    // Steps of equal ratio: passes of different lengths then add up.
    float way = log(1.0 - min(u_param3.x, 0.95)) * outside;

    float places = float(kPlaces);
    float nearer = exp(0.5 * way / places);
    float next = nearer * nearer;
    float glow = kGlowGain * u_param6.x;
    vec3 split = u_param7.x * vec3(1.0, 0.0, -1.0);
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
    fragColor = vec4(mix(src.rgb, trail, u_param4.x * outside), src.a);
}
