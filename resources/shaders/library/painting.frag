#version 440
// Dark brush lines along edges, over strengthened colours.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: nine texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/sampling.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2, u_param3; };
#define u_texelSize u_param0.xy  // distance of the compared places, in uv
#define u_strength u_param1.x    // darkness of the lines, 0 none
#define u_satMul u_param2.x      // chroma factor, 1 changes nothing
#define u_brightMul u_param3.x   // brightness factor, 1 changes nothing

const float kEdgeGain = 0.5618;

float tone(float x, float y)
{
    vec3 c = readInside(u_input, v_uv + vec2(x, y) * u_texelSize).rgb;
    return dot(c, vec3(3.0, 4.0, 2.0)) / 9.0;
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    float nw = tone(-1.0, -1.0), n = tone(0.0, -1.0), ne = tone(1.0, -1.0);
    float w = tone(-1.0, 0.0), e = tone(1.0, 0.0);
    float sw = tone(-1.0, 1.0), s = tone(0.0, 1.0), se = tone(1.0, 1.0);
    float gx = ne + 2.0 * e + se - nw - 2.0 * w - sw;
    float gy = sw + 2.0 * s + se - nw - 2.0 * n - ne;
    float line = clamp((abs(gx) + abs(gy)) * u_strength * kEdgeGain, 0.0, 1.0);

    vec3 rgb = clamp(saturated(src.rgb, u_satMul), 0.0, 1.0);
    rgb = clamp(rgb * u_brightMul, 0.0, 1.0);
    fragColor = vec4(clamp(rgb - line, 0.0, 1.0), src.a);
}
