#version 440
// A picture as a film stock would have drawn it: light falls off towards the corners, the stock's curve and colours
// are applied in a perceptual colour space, then fading, grain, and the dust and scratches of a worn print.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read, two noises; artifacts: 18 hashes.
#extension GL_GOOGLE_include_directive : require
#include "../common/film.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10, u_param11, u_param12, u_param13, u_param14, u_param15, u_param16;
};
#define u_size u_param0.xy          // width and height, pixels
#define u_style u_param1            // contrast; chroma; how far black is lifted; exposure in stops: the stock's
#define u_strength u_param2.x       // share of the graded picture, 0..1
#define u_saturation u_param3.x     // -1..1, 0 is the stock's own
#define u_contrast u_param4.x       // -1..1, 0 is the stock's own
#define u_fade u_param5.x           // how far black is lifted, 0..1
#define u_grain u_param6.x          // 0..1, with the stock's own
#define u_vignette u_param7.x       // loss of light in the corners, 0..1
#define u_artifacts u_param8.x      // dust and scratches, 0..1
#define u_seed u_param9.x
#define u_fadedBlack u_param10.xyz  // what black fades to, encoded
#define u_shadowTint u_param11.xy   // Oklab a and b
#define u_lightTint u_param12.xy    // Oklab a and b
#define u_grainSize u_param13.x     // of a grain, pixels
#define u_hueAxis u_param14.xy      // an axis in Oklab's a and b
#define u_hueDraw u_param15.x       // how far other hues are drawn to it, 0..1
#define u_dyeDensity u_param16.x    // how dark strong colours get, as dyes do

vec3 developed(vec3 linear)
{
    vec3 lab = linearToOklab(rolledOff(linear * exp2(u_style.w), 0.72));
    float chroma = u_style.y * (1.0 + u_saturation);
    // Black and white sees blue darker and red lighter than the eye.
    lab.x += 0.30 * (1.0 - min(u_style.y * 4.0, 1.0)) * dot(lab.yz, vec2(0.35, 0.65)) * lab.x;

    float along = dot(lab.yz, u_hueAxis);
    vec2 across = lab.yz - along * u_hueAxis;
    lab.yz = vibrantChroma(along * u_hueAxis + across * (1.0 - u_hueDraw), chroma);
    lab.x *= 1.0 - u_dyeDensity * min(length(lab.yz), 0.4) * lab.x;

    lab.x = toneCurve(lab.x, clamp(u_style.x + 0.8 * u_contrast, -1.0, 1.0));
    // Tints come and go with the tone: none in the deepest black and in white.
    float shadows = lab.x * (1.0 - lab.x) * (1.0 - lab.x) * 6.75;
    float lights = lab.x * lab.x * (1.0 - lab.x * lab.x) * 4.0;
    float tint = min(1.0 + u_saturation, 1.0) * (1.0 - 0.35 * skinShare(lab.yz));
    lab.yz += tint * (u_shadowTint * shadows + u_lightTint * lights);
    return oklabToEncoded(lab);
}

// Dark is lifted towards the colour that the stock fades to, white comes down a little.
vec3 faded(vec3 color)
{
    float amount = clamp(u_style.z + u_fade, 0.0, 1.2);
    vec3 black = u_fadedBlack * 0.62 * amount;
    return black + color * (1.0 - black - 0.05 * amount * vec3(0.4, 0.7, 1.3));
}

// What lies on a worn print, as a shift towards white (above 0) or black: specks of dust, hairs, scratches that ran
// through the projector. Sizes follow the diagonal.
float wear(vec2 pixel, uint seed)
{
    float unit = length(u_size) / 1000.0;
    vec2 p = pixel / unit;
    float amount = u_artifacts;
    float thin = min(unit * 0.8, 1.0); // lines narrower than a pixel show less
    float sum = 0.0;
    for (int layer = 0; layer < 2; ++layer) {
        float cellSize = layer == 0 ? 26.0 : 90.0;
        for (int y = 0; y < 2; ++y) {
            for (int x = 0; x < 2; ++x) {
                // The four cells whose middles are nearest.
                ivec2 cell = ivec2(floor(p / cellSize - 0.5)) + ivec2(x, y);
                vec3 here = hash23(cell, seed + uint(layer));
                vec3 more = hash23(cell, seed + 5u + uint(layer));
                if (more.z > amount * 0.55)
                    continue;
                vec2 offset = p - (vec2(cell) + 0.5 + 0.6 * (here.xy - 0.5)) * cellSize;
                float sign = more.y < 0.72 ? 1.0 : -0.8;
                if (layer == 0) {
                    vec2 q = rotation(here.z * 6.28) * offset * vec2(1.0, 1.0 + more.x);
                    float lump = length(q) + 0.35 * sin(3.0 * atan(q.y, q.x + 1e-4) + 9.0 * here.x);
                    float radius = 0.45 + 1.3 * more.x * more.x;
                    sum += sign * coverage((lump - radius) * unit) * 0.85;
                } else {
                    vec2 q = rotation(here.z * 6.28) * offset;
                    float bend = q.y - (10.0 * (more.x - 0.5)) * cos(q.x * 0.11) - 2.5 * sin(q.x * 0.23 + 9.0 * here.y);
                    float reach = 8.0 + 16.0 * more.y;
                    float body = coverage((abs(bend) - 0.35) * unit) * thin;
                    sum += sign * 0.75 * body * (1.0 - smoothstep(reach - 3.0, reach, abs(q.x)));
                }
            }
        }
    }
    // Scratches wander slowly sideways and break off.
    for (int i = 0; i < 6; ++i) {
        vec3 line = hash23(ivec2(i, 77), seed + 3u);
        float sway = valueNoise(vec2(p.y * 0.004, float(i) * 7.0), seed + 4u) - 0.5;
        float across = line.x * u_size.x / unit + 5.0 * sway;
        float broken = smoothstep(0.42, 0.60, valueNoise(vec2(p.y * 0.012, float(i) * 13.0), seed + 6u));
        float width = 0.18 + 0.35 * line.y;
        float body = coverage((abs(p.x - across) - width) * unit) * thin;
        sum += body * broken * step(line.z, amount * 1.1) * (line.y < 0.6 ? 0.45 : -0.35);
    }
    return clamp(sum, -1.0, 1.0);
}

// The share of light that the printer leaves in the corners, around a soft ellipse.
float printed(vec2 uv)
{
    vec2 halfSize = 0.5 * u_size;
    vec2 p = (2.0 * uv - 1.0);
    float radius = length(p);
    float inward = (1.0 - radius) * radius / max(length(p / halfSize), 1e-6); // pixels, to the ellipse
    float feather = 0.67 * min(halfSize.x, halfSize.y);
    return 1.0 - 0.5 * u_vignette * (1.0 - smoothstep(-feather, feather, inward));
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 pixel = v_uv * u_size;
    uint seed = seedBits(u_seed);

    vec3 light = toLinear(src.rgb) * lensFalloff(v_uv, u_size, 0.45 * u_vignette);
    vec3 rgb = faded(developed(light));
    float luma = luminance(rgb);
    vec3 grain = filmGrain(pixel, u_grainSize, u_style.y > 0.0 ? 0.2 : 0.0, seed);
    rgb = withGrain(rgb, grain * u_grain * 0.42 * (0.45 + 0.55 * smoothstep(0.0, 0.3, luma)));
    if (u_artifacts > 0.0) {
        float mark = wear(pixel, seed + 20u);
        vec3 dirt = mark > 0.0 ? vec3(0.95, 0.93, 0.88) : vec3(0.06, 0.05, 0.05);
        rgb = mix(rgb, dirt, abs(mark) * (0.35 + 0.65 * u_artifacts));
    }
    rgb = mix(src.rgb, rgb, u_strength);
    float lost = 1.0 - printed(v_uv);
    rgb *= 1.0 - lost * (0.446 + 0.17 * lost); // of the encoded colour, what that is of the light
    fragColor = vec4(clamp(dithered(rgb, gl_FragCoord.xy), 0.0, 1.0), src.a);
}
