#version 440
// Lays one colour over the picture.
// In and out: straight alpha, (0, 0) top left; alpha passes unchanged. Cost: one texture read.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform ColorizeUniforms {
    vec4 u_fillOpacity;  // rgb: colour, 0..1; a: its share, 0..1
};

void main()
{
    vec4 src = texture(u_input, v_uv);
    fragColor = vec4(mix(src.rgb, u_fillOpacity.rgb, clamp(u_fillOpacity.a, 0.0, 1.0)), src.a);
}
