#version 440
// Goes from the sharp to the blurred picture as the red of the mask grows.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 2) uniform sampler2D u_soft;
layout(binding = 3) uniform sampler2D u_mask;

void main()
{
    fragColor = mix(texture(u_input, v_uv), texture(u_soft, v_uv), texture(u_mask, v_uv).r);
}
