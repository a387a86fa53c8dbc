#version 440
// Brightness becomes a smooth run of three colours.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5;
};
#define u_toneLow u_param0.rgb   // the colour of black
#define u_toneMid u_param1.rgb   // of the midtones
#define u_toneHigh u_param2.rgb  // of white
#define u_balance u_param3.x     // -1..1, above 0 widens the highlights
#define u_contrast u_param4.x    // -1..1
#define u_amount u_param5.x      // share of the toned picture, 0..1

void main()
{
    vec4 src = texture(u_input, v_uv);
    float tone = curved(luminance(src.rgb), u_contrast);

    // Two cubic pieces that meet at the middle with one slope, that of the parabola through the three colours.
    float middle = 0.5 - 0.3 * u_balance;
    vec3 below = (u_toneMid - u_toneLow) / middle;
    vec3 above = (u_toneHigh - u_toneMid) / (1.0 - middle);
    vec3 slope = mix(below, above, middle);
    bool isLow = tone < middle;
    float span = isLow ? middle : 1.0 - middle;
    float t = isLow ? tone / span : (tone - middle) / span;
    vec3 from = isLow ? u_toneLow : u_toneMid;
    vec3 to = isLow ? u_toneMid : u_toneHigh;
    vec3 leaving = span * (isLow ? below : slope);
    vec3 arriving = span * (isLow ? slope : above);
    vec3 toned = from + t * (leaving + t * (3.0 * (to - from) - 2.0 * leaving - arriving
                                           + t * (leaving + arriving - 2.0 * (to - from))));
    fragColor = vec4(mix(src.rgb, clamp(toned, 0.0, 1.0), u_amount), src.a);
}
