#version 440
// Edges in grey, by the gradients of Sobel.
// In and out: straight alpha, (0, 0) top left; alpha passes unchanged. Cost: nine texture reads.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform SobelUniforms {
    vec4 u_texelSizeStrengthRadius;  // xy: size of a texel, 0..1; z: strength, at least 0; w: reach, pixels, at
                                     // least 0.25
    vec4 u_thresholdInvert;          // x: edges below vanish, 0..1; y: 1 for dark edges on white, else 0
};

float lumaAt(vec2 offset)
{
    vec3 rgb = texture(u_input, v_uv + offset).rgb;
    return (3.0 * rgb.r + 4.0 * rgb.g + 2.0 * rgb.b) * 0.1111111;
}

void main()
{
    vec2 ts = u_texelSizeStrengthRadius.xy * max(u_texelSizeStrengthRadius.w, 0.25);
    float topLeft = lumaAt(vec2(-ts.x, -ts.y));
    float top = lumaAt(vec2(0.0, -ts.y));
    float topRight = lumaAt(vec2(ts.x, -ts.y));
    float left = lumaAt(vec2(-ts.x, 0.0));
    float right = lumaAt(vec2(ts.x, 0.0));
    float bottomLeft = lumaAt(vec2(-ts.x, ts.y));
    float bottom = lumaAt(vec2(0.0, ts.y));
    float bottomRight = lumaAt(vec2(ts.x, ts.y));
    float gx = topRight + 2.0 * right + bottomRight - topLeft - 2.0 * left - bottomLeft;
    float gy = bottomLeft + 2.0 * bottom + bottomRight - topLeft - 2.0 * top - topRight;

    float edge = clamp((abs(gx) + abs(gy)) * u_texelSizeStrengthRadius.z * 0.5618, 0.0, 1.0);
    float threshold = u_thresholdInvert.x;
    if (threshold >= 0.001) {
        float full = max(min(1.0, threshold + 0.55), threshold + 0.0001);  // smoothstep needs a span
        edge = smoothstep(threshold, full, edge);
    }
    if (u_thresholdInvert.y > 0.5)
        edge = 1.0 - edge;
    fragColor = vec4(vec3(edge), texture(u_input, v_uv).a);
}
