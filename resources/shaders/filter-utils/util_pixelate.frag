#version 440
// Squares of one colour, that of their middle.
// In and out: straight alpha, (0, 0) top left; alpha is taken with the colour. Cost: one texture read.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform PixelateUniforms {
    vec4 u_sizeBlock;  // xy: picture size, pixels; z: side of a square, whole pixels, at least 1
};

void main()
{
    float block = max(u_sizeBlock.z, 1.0);
    vec2 px = v_uv * u_sizeBlock.xy;
    vec2 middle = (floor(px / block) + 0.5) * block;
    fragColor = texture(u_input, middle / u_sizeBlock.xy);
}
