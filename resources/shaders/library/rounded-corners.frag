#version 440
// Shapes the four corners of the picture: what they take becomes transparent.
// In and out: straight alpha, (0, 0) top left; colours are kept. Cost: one texture read.
#extension GL_GOOGLE_include_directive : require
#include "../common/corners.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2; };
#define u_size u_param0.xy   // width and height, pixels
#define u_radius u_param1.x  // side of the square at a corner that its shape fills, pixels
#define u_style u_param2.x   // 0 round, 1 squircle, 2 scooped, 3 cut, 4 notched

void main()
{
    vec2 halfSize = 0.5 * u_size;
    float radius = u_radius;
    int style = int(u_style + 0.5);
    vec4 src = texture(u_input, v_uv);
    float outside = corneredBox(v_uv * u_size - halfSize, halfSize, radius, style).z;
    // A straight side runs along the border of the picture: its outermost pixels are whole.
    float covered = outside > -0.5 - 1e-3 && radius > 0.0 ? coverage(outside) : 1.0;
    fragColor = vec4(src.rgb, src.a * covered);
}
