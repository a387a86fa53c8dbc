#version 440
// A printed comic: graded and posterised colour, a screen of dots, and ink contours.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: nine texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/sampling.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7;
};
#define u_size u_param0.xy                 // width and height, pixels
#define u_style u_param1.x                 // 0 sunday, 1 pulp, 2 noir
#define u_ink u_param2.x                   // strength of contours and shadows, 0..1
#define u_levels u_param3.x                // of tone, 3..8
#define u_dotSize u_param4.x               // pitch of the screen, pixels; under 0.5 there are no dots
#define u_colorPunch u_param5.x            // 0..1
#define u_brightnessCorrection u_param6.x  // -1..1
#define u_renderScale u_param7.x           // reach of the contours, pixels, 0.5..4

const vec3 kInk[3] = vec3[](vec3(0.025, 0.04, 0.085), vec3(0.105, 0.028, 0.022), vec3(0.018, 0.026, 0.045));
const vec3 kPaper[3] = vec3[](vec3(1.0, 0.955, 0.82), vec3(0.965, 0.825, 0.57), vec3(0.945, 0.9, 0.76));
const float kScreenAngle[3] = float[](0.261799, -0.20944, 0.785398);
const float kDotOpacity[3] = float[](0.3, 0.4, 0.34);

vec3 graded(vec3 color, int style, float punch)
{
    float light = luminance(color);
    if (style == 0) {
        color = saturated(color, 1.05 + 0.9 * punch);
        color *= mix(vec3(0.9, 0.96, 1.08), vec3(1.05, 1.0, 0.88), smoothstep(0.18, 0.82, light));
    } else if (style == 1) {
        vec3 c = saturated(color, 0.95 + 0.72 * punch);
        c = vec3(1.08 * c.r + 0.03 * c.g, 0.92 * c.g + 0.035 * c.r, 0.76 * c.b + 0.08 * c.g);
        color = mix(c, c * vec3(1.08, 0.94, 0.76), 0.2 + 0.16 * (1.0 - light));
    } else {
        color = mix(kInk[2], kPaper[2], smoothstep(0.035, 0.965, light));
    }
    return clamp(contrasted(color, 0.97 + 0.24 * punch), 0.0, 1.0);
}

vec3 posterised(vec3 color, float tone, float levels, int style, float punch)
{
    float steps = max(2.0, levels - 1.0);
    float flatTone = floor(tone * steps + 0.5) / steps;
    float colorSteps = max(2.0, floor(0.75 * levels));
    vec3 coarse = floor(color * colorSteps + 0.5) / colorSteps;
    vec3 result = flatTone + (coarse - luminance(coarse)) * (0.78 + 0.34 * punch);
    result = mix(result, kPaper[style], 0.16 * smoothstep(0.68, 1.0, flatTone));
    result = mix(result, kInk[style], 0.28 * (1.0 - smoothstep(0.02, 0.28, flatTone)));
    return clamp(result, 0.0, 1.0);
}

float halftone(vec2 pixel, float angle, float dotSize, float tone)
{
    float c = cos(angle);
    float s = sin(angle);
    vec2 turned = vec2(c * pixel.x - s * pixel.y, s * pixel.x + c * pixel.y);
    float d = length(fract(turned / max(dotSize, 1.0)) - 0.5);
    float darkness = clamp((1.0 - tone - 0.04) / 0.88, 0.0, 1.0);
    float radius = 0.47 * sqrt(darkness);
    float width = max(fwidth(d), 0.012);
    return 1.0 - smoothstep(radius - width, radius + width, d);
}

// Luminance, white where there is nothing, and alpha.
vec2 edgeValue(float x, float y, vec2 reach)
{
    vec4 c = readInside(u_input, v_uv + vec2(x, y) * reach);
    return vec2(mix(1.0, luminance(c.rgb), c.a), c.a);
}

float contour(vec2 reach, float ink)
{
    vec2 nw = edgeValue(-1.0, -1.0, reach), n = edgeValue(0.0, -1.0, reach), ne = edgeValue(1.0, -1.0, reach);
    vec2 w = edgeValue(-1.0, 0.0, reach), e = edgeValue(1.0, 0.0, reach);
    vec2 sw = edgeValue(-1.0, 1.0, reach), s = edgeValue(0.0, 1.0, reach), se = edgeValue(1.0, 1.0, reach);
    vec2 gx = ne + 2.0 * e + se - nw - 2.0 * w - sw;
    vec2 gy = sw + 2.0 * s + se - nw - 2.0 * n - ne;
    vec2 gradient = sqrt(gx * gx + gy * gy);
    float edge = clamp(0.3 * gradient.x + 0.22 * gradient.y, 0.0, 1.0);
    return smoothstep(mix(0.34, 0.065, ink), mix(0.58, 0.18, ink), edge) * ink;
}

void main()
{
    vec2 size = max(u_size, 1.0);
    int style = int(clamp(floor(u_style + 0.5), 0.0, 2.0));
    float ink = clamp(u_ink, 0.0, 1.0);
    float levels = clamp(floor(u_levels + 0.5), 3.0, 8.0);
    float dotSize = max(u_dotSize, 0.0);
    float punch = clamp(u_colorPunch, 0.0, 1.0);
    float brightness = clamp(u_brightnessCorrection, -1.0, 1.0);
    float scale = clamp(u_renderScale, 0.5, 4.0);

    vec4 src = readInside(u_input, v_uv);
    vec3 color = graded(src.rgb, style, punch);
    float tone = luminance(color);
    color = posterised(color, tone, levels, style, punch);
    color = pow(color, vec3(exp2(-0.75 * brightness)));

    float dots = halftone(v_uv * size, kScreenAngle[style], dotSize, tone);
    color = mix(color, kInk[style], dotSize < 0.5 ? 0.0 : dots * kDotOpacity[style]);

    float line = contour(scale * (0.75 + 0.7 * ink) / size, ink);
    float shadow = (1.0 - smoothstep(0.035, 0.2, tone)) * ink * 0.36;
    fragColor = vec4(mix(color, kInk[style], max(line, shadow)), src.a);
}
