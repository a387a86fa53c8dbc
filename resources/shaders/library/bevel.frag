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
    vec4 u_param0;  // size: width and height, pixels; z, w: radius (pixels) and style of the corners, 0 for square ones
    vec4 u_param1;  // bevel: width of the slope, pixels
    vec4 u_param2;  // strength: 0..1
    vec4 u_param3;  // smoothness: 0, a straight slope, to 1, a rounded one
    vec4 u_param4;  // sign: 1 raised, -1 sunken
};

const float kLight = 0.35; // how much the steepest place gains or loses

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 halfSize = 0.5 * u_param0.xy;
    float bevel = max(u_param1.x, 0.001);

    vec3 edge = corneredBox(v_uv * u_param0.xy - halfSize, halfSize, u_param0.z, int(u_param0.w + 0.5));
    float lin = clamp(1.0 + edge.z / bevel, 0.0, 1.0);
    float falloff = mix(lin, lin * lin * (3.0 - 2.0 * lin), u_param3.x);

    float side = clamp(-edge.x - edge.y, -1.0, 1.0);
    float light = side * falloff * u_param2.x * u_param4.x * kLight;
    vec3 rgb = light > 0.0 ? mix(src.rgb, vec3(1.0), light) : src.rgb * (1.0 + light);
    fragColor = vec4(rgb, src.a);
}
