#version 440
// Every channel takes the place of any other, as it is or inverted.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0;  // pick: the channel that red, green and blue are taken from, 0, 1 or 2
    vec4 u_param1;  // negate: 1 inverts what red, green and blue are taken from
    vec4 u_param2;  // intensity: share of the swapped picture, 0..1
};

void main()
{
    vec4 src = texture(u_input, v_uv);
    ivec3 pick = clamp(ivec3(u_param0.xyz + 0.5), 0, 2);
    vec3 swapped = vec3(src[pick.r], src[pick.g], src[pick.b]);
    swapped = mix(swapped, 1.0 - swapped, u_param1.xyz);
    fragColor = vec4(mix(src.rgb, swapped, u_param2.x), src.a);
}
