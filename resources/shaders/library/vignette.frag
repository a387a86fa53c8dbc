#version 440
// Tints what lies outside a soft mask. The mix is made in linear light, so that colours keep their hue as they darken.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/hash.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_mask;
layout(std140, binding = 2) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2; };
#define u_strength u_param0.x     // 0..1
#define u_mask_invert u_param1.x  // 1 tints inside the mask instead
#define u_tint u_param2.rgb       // red, green, blue, 0..1

void main()
{
    vec4 src = texture(u_input, v_uv);
    float inside = texture(u_mask, v_uv).a;
    // The mask has 256 levels, which would show as rings in a flat sky.
    inside = clamp(inside + (hash21(ivec2(gl_FragCoord.xy), 7u) - 0.5) / 255.0, 0.0, 1.0);
    float amount = mix(1.0 - inside, inside, u_mask_invert) * u_strength;
    vec3 rgb = toEncoded(mix(toLinear(src.rgb), toLinear(u_tint), amount));
    fragColor = vec4(amount > 0.0 ? rgb : src.rgb, src.a);
}
