#version 440
// One direction of a box blur: the plain mean of the pixels up to `radius` away on either side.
// In and out: straight alpha, (0, 0) top left; all four channels are averaged alike. Cost: up to 33 texture reads.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform BoxBlurUniforms {
    vec4 u_dirTexelSizeRadius;  // xy: direction, one of them 1 and the other 0; zw: size of a texel, 0..1
    vec4 u_radius;              // x: radius, pixels, 0..16
};

const int kMaximumRadius = 16;

void main()
{
    vec2 d = u_dirTexelSizeRadius.xy * u_dirTexelSizeRadius.zw;
    vec4 sum = texture(u_input, v_uv);
    float count = 1.0;
    for (int i = 1; i <= kMaximumRadius; ++i) {
        if (float(i) > u_radius.x)
            break;
        vec2 offset = d * float(i);
        sum += texture(u_input, v_uv + offset) + texture(u_input, v_uv - offset);
        count += 2.0;
    }
    fragColor = sum / count;
}
