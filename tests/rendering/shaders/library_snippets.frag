#version 440
#extension GL_GOOGLE_include_directive : require
// Shows what one of the shared snippets makes of the picture.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0;  // x: which one; y: seed; zw: a shift in uv
};
#include "../../../resources/shaders/common/cellular.glsl"
#include "../../../resources/shaders/common/color.glsl"
#include "../../../resources/shaders/common/noise.glsl"
#include "../../../resources/shaders/common/sampling.glsl"
#include "../../../resources/shaders/common/shapes.glsl"

vec4 shown(int which)
{
    vec2 uv = v_uv + u_param0.zw;
    vec2 size = vec2(textureSize(u_input, 0));
    vec2 p = uv * size / 8.0 - 5.0;  // cells of eight pixels, on both sides of 0
    uint seed = seedBits(u_param0.y);
    vec3 c = texture(u_input, uv).rgb;
    switch (which) {
    case 0: return vec4(rgbToHsv(c), 1.0);
    case 1: return vec4(hsvToRgb(rgbToHsv(c)), 1.0);
    case 2: return vec4(rgbToHsl(c), 1.0);
    case 3: return vec4(hslToRgb(rgbToHsl(c)), 1.0);
    case 4: return vec4(toLinear(c), 1.0);
    case 5: return vec4(toEncoded(toLinear(c)), 1.0);
    case 6: return vec4(encodedToOklab(c) + vec3(0.0, 0.5, 0.5), 1.0);
    case 7: return vec4(oklabToEncoded(encodedToOklab(c)), 1.0);
    case 10: return vec4(vec3(hash21(ivec2(floor(uv * size)), seed)), 1.0);
    case 11: return vec4(hash23(ivec2(floor(uv * size)), seed), 1.0);
    case 12: return vec4(vec3(valueNoise(p, seed)), 1.0);
    case 13: return vec4(vec3(0.5 + 0.5 * gradientNoise(p, seed)), 1.0);
    case 14: return vec4(vec3(0.5 + 0.5 * fbm(p, 2.5, seed)), 1.0);
    case 15: return vec4(vec3(valueFbm(p, 2.5, seed)), 1.0);
    case 20: return readSmooth(u_input, uv);
    case 21: return readBicubic(u_input, uv);
    case 22: return vec4(0.5 + 0.5 * contourDirection(structureTensor(u_input, uv, 1.0 / size)), 1.0);
    case 23: return vec4(0.5 + 0.5 * normalize(sobelGradient(u_input, uv, 1.0 / size)), 0.0, 1.0);
    }
    Cellular found = cellular(p, 0.9, seed);
    float border = cellBorder(p, found, 0.9, seed);
    if (which == 30)  // no border is farther than half way to the second point, nor a point nearer than the nearest
        return vec4(step(found.f1, found.f2), step(border, 0.5 * (found.f1 + found.f2) + 1e-4),
                    step(abs(length(found.centre) - found.f1), 1e-5), 1.0);
    return vec4(aastep(0.15, border), coverage(sdRoundedBox(rotation(1.0) * p, vec2(3.0), 1.0)), found.f1, 1.0);
}

void main() { fragColor = shown(int(u_param0.x)); }
