#version 440
// Multiplies every channel by the first uniform and adds the second.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0;
    vec4 u_param1;
};

void main()
{
    fragColor = texture(u_input, v_uv) * u_param0 + u_param1;
}
