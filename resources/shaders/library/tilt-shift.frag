#version 440
// A miniature: a straight band of focus, blur that grows away from it, and strong, warm-and-cool colours.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_blurred; // the same picture out of focus, of any size
layout(std140, binding = 2) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5;
};
#define u_size u_param0.xy          // width and height, pixels
#define u_focusPosition u_param1.x  // where the band crosses the middle, 0 top to 1 bottom
#define u_focusWidth u_param2.x     // from its middle to where the blur begins, in picture heights
#define u_angle u_param3.x          // radians, clockwise
#define u_blurStrength u_param4.x   // 0..1
#define u_colorPunch u_param5.x     // 0..1

// Half-transparent edges, and what the blur has mixed with them, take no blur.
float stableCoverage(float alpha) { return smoothstep(0.985, 0.9995, alpha); }

// 0 in the band, 1 where the lens is fully out of focus; p is the place from the middle of the line, in heights.
float lensMask(vec2 p, float angle, float width, float strength)
{
    float distance = abs(dot(p, vec2(-sin(angle), cos(angle))));
    float feather = 0.026 + 0.3 * width + 0.025 * strength;
    float near = smoothstep(0.78 * width, width + feather, distance);
    float far = smoothstep(width, width + 2.15 * feather, distance);
    return mix(near, far, 0.34);
}

vec3 miniatureGrade(vec3 color, float amount)
{
    float chroma = max(color.r, max(color.g, color.b)) - min(color.r, min(color.g, color.b));
    float vibrance = 1.0 + amount * mix(0.52, 0.2, chroma);
    color = mix(vec3(luminance(color)), color, vibrance);
    color = mix(color, color * color * (3.0 - 2.0 * color), 0.28 * amount);
    float l = luminance(color);
    float shadows = 1.0 - smoothstep(0.12, 0.52, l);
    float midtones = smoothstep(0.16, 0.5, l) * (1.0 - smoothstep(0.58, 0.88, l));
    float highlights = smoothstep(0.48, 0.94, l);
    color += amount
        * (vec3(-0.014, 0.006, 0.034) * shadows + vec3(0.012, 0.02, -0.004) * midtones
           + vec3(0.042, 0.018, -0.018) * highlights);
    return clamp(color, 0.0, 1.0);
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec4 blurred = texture(u_blurred, v_uv);
    float strength = u_blurStrength;
    float punch = u_colorPunch;
    vec2 aspect = vec2(u_size.x / max(u_size.y, 1.0), 1.0);

    float mask = lensMask((v_uv - vec2(0.5, u_focusPosition)) * aspect, u_angle, u_focusWidth, strength);
    float stable = stableCoverage(src.a) * stableCoverage(blurred.a);
    float blurMix = clamp(mask * strength, 0.0, 1.0) * stable;
    vec3 color = mix(src.rgb, blurred.rgb, blurMix);
    color += (src.rgb - blurred.rgb) * (1.0 - mask) * stable * strength * (0.035 + 0.045 * punch);

    color = miniatureGrade(color, punch);
    color += blurred.rgb * smoothstep(0.62, 0.96, luminance(blurred.rgb)) * blurMix * punch * 0.035;
    float corner = length((v_uv - 0.5) * aspect);
    color *= 1.0 - smoothstep(0.44, 0.88, corner) * punch * 0.045;
    fragColor = vec4(clamp(color, 0.0, 1.0), src.a);
}
