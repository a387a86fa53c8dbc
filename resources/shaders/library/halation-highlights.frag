#version 440
// Where a picture is bright enough to light up the back of the film: energy as grey, opaque.
// In: straight alpha, (0, 0) top left. Out: opaque. Cost: one texture read.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms { vec4 u_param0, u_param1; };
#define u_threshold u_param0.x  // brightness from which light counts, 0..1
#define u_softness u_param1.x   // span of brightness until all of it counts, above 0

void main()
{
    vec4 src = texture(u_input, v_uv);
    float threshold = u_threshold;
    float energy = smoothstep(threshold, threshold + max(u_softness, 1e-4), luminance(src.rgb)) * src.a;
    fragColor = vec4(vec3(energy), 1.0);
}
