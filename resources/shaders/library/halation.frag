#version 440
// The red halo that film shows round highlights: light that came back from behind the emulsion. It falls beside a
// highlight and not on it.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: three texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_highlights;
layout(binding = 2) uniform sampler2D u_blurred;
layout(std140, binding = 3) uniform LibraryUniforms { vec4 u_param0, u_param1; };
#define u_strength u_param0.x  // 0..1
#define u_warmth u_param1.x    // 0, a white glow, to 1, a red one

void main()
{
    vec4 src = texture(u_input, v_uv);
    float spread = max(texture(u_blurred, v_uv).r - texture(u_highlights, v_uv).r, 0.0);
    float halo = spread * spread / (spread + 0.04) * u_strength;
    if (src.a <= 0.0 || halo <= 0.0) {
        fragColor = src;
        return;
    }
    vec3 tint = mix(vec3(1.0), vec3(1.0, 0.12, 0.025), u_warmth);
    vec3 glowing = clamp(toLinear(src.rgb) + tint * halo, 0.0, 1.0);
    fragColor = vec4(toEncoded(glowing), src.a);
}
