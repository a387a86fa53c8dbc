#version 440
#extension GL_GOOGLE_include_directive : require
// A rounded rim within a region: a sine of the distance to its nearest edge, first light, then dark.
// In and out: straight alpha, (0, 0) top left; alpha passes unchanged. Cost: one texture read.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform SoftBevelUniforms {
    vec4 u_sizeShadowStrength;  // xy: picture size, pixels; z: width of the rim, pixels, at least 0; w: strength, 0..1
    vec4 u_region;              // left, top, right, bottom, pixels; y from the picture's last row
};
#include "util_frame.glsl"

void main()
{
    fragColor = texture(u_input, v_uv);
    vec4 distances = distancesToEdges(v_uv, u_sizeShadowStrength.xy, u_region);
    float nearest = min(min(distances.x, distances.z), min(distances.y, distances.w));
    float size = u_sizeShadowStrength.z;
    if (isOutside(distances) || nearest >= size)
        return;
    float halfSize = size * 0.5;
    float increment = sin((halfSize - nearest) / halfSize) * u_sizeShadowStrength.w * 30.0 / 255.0;
    fragColor.rgb = clamp(fragColor.rgb + increment, 0.0, 1.0);
}
