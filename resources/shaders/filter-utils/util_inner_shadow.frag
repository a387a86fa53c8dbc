#version 440
#extension GL_GOOGLE_include_directive : require
// A tinted shadow that falls inwards from the four edges of a region.
// In and out: straight alpha, (0, 0) top left; alpha passes unchanged. Cost: one texture read.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform InnerShadowUniforms {
    vec4 u_sizeShadowStrength;  // xy: picture size, pixels; z: reach, pixels, at least 0.001; w: strength, 0..1
    vec4 u_region;              // left, top, right, bottom, pixels; y from the picture's last row
    vec4 u_tint;                // rgb: colour of the shadow, 0..1
};
#include "util_frame.glsl"

/// The share of the picture at this distance from the nearer of two opposite edges.
float edgeAlpha(float distance)
{
    float size = u_sizeShadowStrength.z;
    return distance < size ? clamp(distance / size + 1.0 - u_sizeShadowStrength.w, 0.2, 1.0) : 1.0;
}

void main()
{
    fragColor = texture(u_input, v_uv);
    vec4 distances = distancesToEdges(v_uv, u_sizeShadowStrength.xy, u_region);
    float alpha = edgeAlpha(min(distances.y, distances.w)) * edgeAlpha(min(distances.x, distances.z));
    if (isOutside(distances) || alpha >= 0.999)
        return;
    vec3 tint = u_tint.rgb;
    fragColor.rgb = max(mix(tint, fragColor.rgb, alpha), min(fragColor.rgb, tint));
}
