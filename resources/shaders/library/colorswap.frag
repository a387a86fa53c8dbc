#version 440
// Every channel takes the place of any other, as it is or inverted.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2; };
#define u_pick u_param0.xyz     // the channel that red, green and blue are taken from, 0, 1 or 2
#define u_negate u_param1.xyz   // 1 inverts what red, green and blue are taken from
#define u_intensity u_param2.x  // share of the swapped picture, 0..1

void main()
{
    vec4 src = texture(u_input, v_uv);
    ivec3 pick = clamp(ivec3(u_pick + 0.5), 0, 2);
    vec3 swapped = vec3(src[pick.r], src[pick.g], src[pick.b]);
    swapped = mix(swapped, 1.0 - swapped, u_negate);
    fragColor = vec4(mix(src.rgb, swapped, u_intensity), src.a);
}
