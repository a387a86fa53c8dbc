#version 440
// A picture of edges over the picture it was made from.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_edges;
layout(std140, binding = 2) uniform LibraryUniforms { vec4 u_param0, u_param1; };
#define u_mix u_param0.x     // share of the edges, 0..1
#define u_invert u_param1.x  // 1 for dark edges on white, else 0

void main()
{
    vec4 src = texture(u_input, v_uv);
    float edge = texture(u_edges, v_uv).r;
    vec3 drawn = vec3(mix(edge, 1.0 - edge, u_invert));
    fragColor = vec4(mix(src.rgb, drawn, u_mix), src.a);
}
