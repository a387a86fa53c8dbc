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
    vec4 u_param0;  // lutSize: x width of the palette, pixels
    vec4 u_param1;  // mix: share of the palette's colours, 0..1
    vec4 u_param2;  // contrast: -1..1
    vec4 u_param3;  // gamma: exponent, below 1 makes midtones hotter
    vec4 u_param4;  // reverse: 1 makes dark hot
    vec4 u_param5;  // bands: number of steps; under 2 there are none
};

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
    float heat = pow(luminance(src.rgb), u_param3.x);
    heat = curved(heat, u_param2.x);
    if (u_param5.x > 1.5)
        heat = banded(heat, u_param5.x);
    heat = mix(heat, 1.0 - heat, u_param4.x);

    float width = max(u_param0.x, 1.0);
    vec3 color = texture(u_lut, vec2((heat * (width - 1.0) + 0.5) / width, 0.5)).rgb;
    fragColor = vec4(mix(src.rgb, color, u_param1.x), src.a);
}
