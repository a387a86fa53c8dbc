#version 440
// Sharpens by what distinguishes a pixel from its surroundings (an unsharp mask), in brightness alone. Noise is spared
// and edges overshoot little. Two more steps prepare and finish a blur, which happens elsewhere.
// In and out: straight alpha, (0, 0) top left; sharpening keeps alpha. Cost: 9 to 22 texture reads, by radius.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/sampling.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0;  // size: width and height, pixels
    vec4 u_param1;  // strength: x 0..1; y step: 0 sharpen, 1 multiply by alpha, 2 divide by alpha
    vec4 u_param2;  // radius: standard deviation of the surroundings, pixels
};

const float kReachPerRadius = 2.83; // of the disc whose bell has this standard deviation
const mat2 kGoldenTurn = mat2(-0.7373688, 0.6754903, -0.6754903, -0.7373688);

void main()
{
    vec4 src = texture(u_input, v_uv);
    if (u_param1.y > 0.5) {
        fragColor = u_param1.y < 1.5 ? premultiplied(src) : clamp(straight(src), 0.0, 1.0);
        return;
    }

    // Places on the spiral of sunflower seeds, evenly over a disc; the weight (1 - r^2)^2 makes it a bell.
    int count = int(clamp(6.0 + 3.0 * u_param2.x, 8.0, 21.0));
    float reach = kReachPerRadius * u_param2.x / sqrt(float(count) + 0.5);
    vec2 texel = 1.0 / u_param0.xy;
    vec2 direction = vec2(1.0, 0.0);
    float tone = luminance(src.rgb);
    float low = tone;
    float high = tone;
    float sum = tone * src.a;
    float total = src.a;
    for (int i = 1; i <= count; ++i) {
        vec4 near = texture(u_input, v_uv + direction * (reach * sqrt(float(i))) * texel);
        float nearTone = luminance(near.rgb);
        float inner = 1.0 - float(i) / (float(count) + 1.0);
        float weight = inner * inner * near.a;
        sum += nearTone * weight;
        total += weight;
        low = near.a > 0.5 ? min(low, nearTone) : low;
        high = near.a > 0.5 ? max(high, nearTone) : high;
        direction = kGoldenTurn * direction;
    }

    float detail = total > 0.0 ? tone - sum / total : 0.0;
    detail *= mix(0.35, 1.0, smoothstep(0.0, 0.018, abs(detail)));
    float sharp = tone + detail * 3.2 * u_param1.x;
    float bounded = clamp(sharp, low, high);
    sharp = bounded + (sharp - bounded) * 0.4;
    fragColor = vec4(fitted(src.rgb + (sharp - tone)), src.a);
}
