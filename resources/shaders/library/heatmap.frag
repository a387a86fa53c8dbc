#version 440
// Brightness as heat: a palette from cold to hot, in one run or in bands.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_lut;  // one row, cold to hot
layout(std140, binding = 2) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5;
};
#define u_lutSize u_param0.xy  // of the palette, pixels
#define u_mix u_param1.x       // share of the palette's colours, 0..1
#define u_contrast u_param2.x  // -1..1
#define u_gamma u_param3.x     // exponent, below 1 makes midtones hotter
#define u_reverse u_param4.x   // 1 makes dark hot
#define u_bands u_param5.x     // number of steps; under 2 there are none

// Steps of equal width, their borders a pixel soft.
float banded(float heat, float count)
{
    float step = clamp(heat, 0.0, 1.0) * count;
    float width = clamp(fwidth(step), 0.001, 0.5);
    float index = floor(step - 0.5);
    float border = smoothstep(0.5 - 0.5 * width, 0.5 + 0.5 * width, step - 0.5 - index);
    return clamp((index + border) / (count - 1.0), 0.0, 1.0);
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    float heat = pow(luminance(src.rgb), u_gamma);
    heat = curved(heat, u_contrast);
    if (u_bands > 1.5)
        heat = banded(heat, u_bands);
    heat = mix(heat, 1.0 - heat, u_reverse);

    float width = max(u_lutSize.x, 1.0);
    vec3 color = texture(u_lut, vec2((heat * (width - 1.0) + 0.5) / width, 0.5)).rgb;
    fragColor = vec4(mix(src.rgb, color, u_mix), src.a);
}
