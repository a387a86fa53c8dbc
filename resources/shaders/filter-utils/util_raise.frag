#version 440
#extension GL_GOOGLE_include_directive : require
// A straight rim within a region: light along left and top, dark along right and bottom, as the region counts y.
// In and out: straight alpha, (0, 0) top left; alpha passes unchanged. Cost: one texture read.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform RaiseUniforms {
    vec4 u_sizeBevel;  // xy: picture size, pixels; z: width of the rim, pixels; at most 0 for none
    vec4 u_region;     // left, top, right, bottom, pixels; y from the picture's last row
};
#include "util_frame.glsl"

const float kStrongest = 0.2;

void main()
{
    fragColor = texture(u_input, v_uv);
    vec4 distances = distancesToEdges(v_uv, u_sizeBevel.xy, u_region);
    float bevel = u_sizeBevel.z;
    if (isOutside(distances) || bevel <= 0.0)
        return;
    float minTL = min(distances.x, distances.y);
    float minBR = min(distances.z, distances.w);
    if (minTL < bevel && minTL <= minBR)
        fragColor.rgb += kStrongest * (1.0 - minTL / bevel);
    if (minBR < bevel && minBR < minTL)
        fragColor.rgb -= kStrongest * (1.0 - minBR / bevel);
}
