#version 440
// Sharpens by what distinguishes a pixel from its surroundings (an unsharp mask), in brightness alone. Noise is spared
// and edges overshoot little. Two more steps prepare and finish a blur, which happens elsewhere.
// In and out: straight alpha, (0, 0) top left; sharpening keeps alpha. Cost: 7 to 19 texture reads, by radius.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/sampling.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2, u_param3; };
#define u_size u_param0.xy     // width and height, pixels
#define u_strength u_param1.x  // 0..1
#define u_radius u_param2.x    // standard deviation of the surroundings, pixels
#define u_step u_param3.x      // 0 sharpen, 1 multiply by alpha, 2 divide by alpha

const float kReachPerRadius = 2.83; // of the disc whose bell has this standard deviation
const float kMiddleWeight = 0.6;
const mat2 kSixthOfTurn = mat2(0.5, 0.8660254, -0.8660254, 0.5);
const mat2 kGoldenTurn = mat2(-0.7373688, 0.6754903, -0.6754903, -0.7373688);

void main()
{
    vec4 src = texture(u_input, v_uv);
    if (u_step > 0.5) {
        fragColor = u_step < 1.5 ? premultiplied(src) : clamp(straight(src), 0.0, 1.0);
        return;
    }

    // Rings of six places over a disc, evenly, each turned against the one before; the weight (1 - r^2)^2 makes it a
    // bell. Six see lines of every direction alike, where four do not.
    int rings = int(clamp(0.5 * u_radius + 0.5, 1.0, 3.0));
    float tone = luminance(src.rgb);
    float low = tone;
    float high = tone;
    float sum = tone * src.a * kMiddleWeight;
    float total = src.a * kMiddleWeight;
    vec2 texel = 1.0 / u_size;
    vec2 direction = vec2(0.9659258, 0.2588190) * kReachPerRadius * u_radius;
    int ring = 0;
    do { // asks at its end: a software renderer would run the body once more to find out
        float away = (float(ring) + 0.4) / float(rings); // squared
        float weight = (1.0 - away) * (1.0 - away);
        vec2 offset = direction * sqrt(away);
        for (int i = 0; i < 3; ++i) {
            vec4 one = texture(u_input, v_uv + offset * texel);
            vec4 other = texture(u_input, v_uv - offset * texel);
            vec2 tones = vec2(luminance(one.rgb), luminance(other.rgb));
            vec2 covered = vec2(one.a, other.a);
            sum += dot(tones, covered) * weight;
            total += (one.a + other.a) * weight;
            vec2 counted = mix(vec2(tone), tones, covered);
            low = min(low, min(counted.x, counted.y));
            high = max(high, max(counted.x, counted.y));
            offset = kSixthOfTurn * offset;
        }
        direction = kGoldenTurn * direction;
    } while (++ring < rings);

    float detail = total > 0.0 ? tone - sum / total : 0.0;
    detail *= mix(0.35, 1.0, smoothstep(0.0, 0.018, abs(detail)));
    float sharp = tone + detail * 3.2 * u_strength;
    float bounded = clamp(sharp, low, high);
    sharp = bounded + (sharp - bounded) * 0.4;
    fragColor = vec4(fitted(src.rgb + (sharp - tone)), src.a);
}
