#version 440
// One colour stays, as bright as it is or boosted; the rest turns to the grey picture.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_gray;
layout(std140, binding = 2) uniform LibraryUniforms {
    vec4 u_param0;  // targetHue: 0..1
    vec4 u_param1;  // tolerance: greatest distance of hue that stays whole, 0..0.5
    vec4 u_param2;  // softness: further distance over which colour fades, 0..0.5
    vec4 u_param3;  // backgroundSaturation: colour left in the rest, 0..1
    vec4 u_param4;  // targetBoost: colour added to what stays, 0..1
    vec4 u_param5;  // amount: share of the whole effect, 0..1
    vec4 u_param6;  // invert: 1 takes the colour away instead
};

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec3 gray = texture(u_gray, v_uv).rgb;
    vec3 hsv = rgbToHsv(src.rgb);

    float away = abs(hsv.x - u_param0.x);
    float distance = min(away, 1.0 - away);
    float tolerance = u_param1.x;
    float hueMask = 1.0 - smoothstep(tolerance, tolerance + max(u_param2.x, 0.001), distance);
    float colorMask = smoothstep(0.05, 0.22, hsv.y); // the hue of near greys means nothing
    float keep = clamp(hueMask * colorMask, 0.0, 1.0);
    if (u_param6.x >= 0.5)
        keep = 1.0 - keep;

    vec3 muted = mix(gray, src.rgb, u_param3.x);
    vec3 boosted = clamp(mix(gray, src.rgb, 1.0 + u_param4.x), 0.0, 1.0);
    fragColor = vec4(mix(src.rgb, mix(muted, boosted, keep), u_param5.x), src.a);
}
