#version 440
// The rim of the picture as a slope, lit from the top left: the edges there brighten, those at the bottom right darken.
// The rim may follow shaped corners. In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture
// read.
#extension GL_GOOGLE_include_directive : require
#include "../common/corners.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6;
};
#define u_size u_param0.xy         // of the picture, pixels
#define u_bevel u_param1.x         // width of the slope, pixels
#define u_strength u_param2.x      // 0..1
#define u_smoothness u_param3.x    // 0, a straight slope, to 1, a rounded one
#define u_sign u_param4.x          // 1 raised, -1 sunken
#define u_cornerRadius u_param5.x  // pixels; 0 for square corners
#define u_cornerStyle u_param6.x   // as of rounded-corners

const float kLight = 0.35; // how much the steepest place gains or loses

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 halfSize = 0.5 * u_size;
    float bevel = max(u_bevel, 0.001);

    vec3 edge = corneredBox(v_uv * u_size - halfSize, halfSize, u_cornerRadius, int(u_cornerStyle + 0.5));
    float lin = clamp(1.0 + edge.z / bevel, 0.0, 1.0);
    float falloff = mix(lin, lin * lin * (3.0 - 2.0 * lin), u_smoothness);

    float side = clamp(-edge.x - edge.y, -1.0, 1.0);
    float light = side * falloff * u_strength * u_sign * kLight;
    vec3 rgb = light > 0.0 ? mix(src.rgb, vec3(1.0), light) : src.rgb * (1.0 + light);
    fragColor = vec4(rgb, src.a);
}
