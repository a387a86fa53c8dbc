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
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6;
};
#define u_targetHue u_param0.x             // 0..1
#define u_tolerance u_param1.x             // greatest distance of hue that stays whole, 0..0.5
#define u_softness u_param2.x              // further distance over which colour fades, 0..0.5
#define u_backgroundSaturation u_param3.x  // colour left in the rest, 0..1
#define u_targetBoost u_param4.x           // colour added to what stays, 0..1
#define u_amount u_param5.x                // share of the whole effect, 0..1
#define u_invert u_param6.x                // 1 takes the colour away instead

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec3 gray = texture(u_gray, v_uv).rgb;
    vec3 hsv = rgbToHsv(src.rgb);

    float away = abs(hsv.x - u_targetHue);
    float distance = min(away, 1.0 - away);
    float tolerance = u_tolerance;
    float hueMask = 1.0 - smoothstep(tolerance, tolerance + max(u_softness, 0.001), distance);
    float colorMask = smoothstep(0.05, 0.22, hsv.y); // the hue of near greys means nothing
    float keep = clamp(hueMask * colorMask, 0.0, 1.0);
    if (u_invert >= 0.5)
        keep = 1.0 - keep;

    vec3 muted = mix(gray, src.rgb, u_backgroundSaturation);
    vec3 boosted = clamp(mix(gray, src.rgb, 1.0 + u_targetBoost), 0.0, 1.0);
    fragColor = vec4(mix(src.rgb, mix(muted, boosted, keep), u_amount), src.a);
}
