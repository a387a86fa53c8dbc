#version 440
// What an image intensifier sees: brightness alone, foliage and skin lighter than to the eye, blue sky dark.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read.
#extension GL_GOOGLE_include_directive : require
#include "../common/film.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms { vec4 u_param0; };
#define u_contrast u_param0.x  // -1..1

void main()
{
    vec4 src = texture(u_input, v_uv);
    float seen = max(dot(toLinear(src.rgb), vec3(0.46, 0.56, -0.02)), 0.0);
    float tone = toneCurve(toEncoded(vec3(seen)).r, u_contrast);
    fragColor = vec4(vec3(tone), src.a);
}
