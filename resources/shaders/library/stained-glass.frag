#version 440
// A leaded window: panes of hand-made glass in lead of even width. The panes are cells around points, one in each
// square; the points and the colours of the cells come in a map beside the picture (common/stacked.glsl): for each
// square, with three more around the picture, the place of its point in it, then the colour.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: 37 texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/noise.glsl"
#include "../common/shapes.glsl"
#include "../common/stacked.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9;
};
#define u_size u_param0.xy         // width and height of the picture, pixels
#define u_paneSize u_param1.x      // side of a square, pixels, above 0
#define u_colorLevels u_param2.x   // steps of lightness and of colour, at least 2
#define u_saturation u_param3.x    // 1 changes nothing, 0..2
#define u_seamWidth u_param4.x     // of the lead, pixels
#define u_leadColor u_param5.rgb   // lead colour
#define u_shine u_param6.x         // 0..1
#define u_refraction u_param7.x    // how uneven the glass is, 0..1
#define u_translucency u_param8.x  // how much of the picture shows behind the glass, 0..1
#define u_seed u_param9.x

const int kMargin = 3;
const vec2 kToLight = vec2(-0.6, -0.8);

ivec2 entryOf(ivec2 square) { return ivec2((square.x + kMargin) * 2, square.y + kMargin); }
vec2 pointIn(ivec2 square, ivec2 origin)
{
    return vec2(square) + fetchStackedMap(u_input, origin, entryOf(square)).xy;
}

// Glass is sold in so many colours.
vec3 glassColor(vec3 color)
{
    float levels = max(u_colorLevels, 2.0);
    vec3 lab = encodedToOklab(saturated(color, u_saturation));
    lab.x = (floor(lab.x * levels) + 0.5) / levels;
    float chromaStep = 0.36 / levels;
    lab.yz = floor(lab.yz / chromaStep + 0.5) * chromaStep;
    return oklabToEncoded(lab);
}

void main()
{
    vec2 size = u_size;
    float paneSize = max(u_paneSize, 0.01);
    ivec2 origin = mapOrigin(u_input, size);
    vec2 px = v_uv * size;
    vec2 p = px / paneSize;

    ivec2 home = ivec2(floor(p));
    ivec2 pane = home;
    vec2 toPoint = vec2(8.0);
    for (int y = -1; y <= 1; ++y) {
        for (int x = -1; x <= 1; ++x) {
            ivec2 square = home + ivec2(x, y);
            vec2 to = pointIn(square, origin) - p;
            if (dot(to, to) < dot(toPoint, toPoint)) {
                toPoint = to;
                pane = square;
            }
        }
    }

    // The two nearest borders of the pane; where they meet, the lead fills the corner.
    float border = 8.0;
    float second = 8.0;
    vec2 outward = vec2(0.0, 1.0);
    for (int y = -2; y <= 2; ++y) {
        for (int x = -2; x <= 2; ++x) {
            if ((x == 0 && y == 0) || abs(x * y) == 4)
                continue;
            vec2 other = pointIn(pane + ivec2(x, y), origin) - p;
            vec2 between = other - toPoint;
            vec2 across = between * inversesqrt(max(dot(between, between), 1e-6));
            float reach = dot(0.5 * (toPoint + other), across);
            if (reach < border) {
                second = border;
                border = reach;
                outward = across;
            } else {
                second = min(second, reach);
            }
        }
    }
    const float kFillet = 0.09;
    float meeting = max(kFillet - (second - border), 0.0) / kFillet;
    float fromBorder = max(border - meeting * meeting * kFillet * 0.25, 0.0) * paneSize; // pixels
    float halfLead = 0.5 * u_seamWidth;
    float inGlass = fromBorder - halfLead;

    // Each pane was cut from another sheet: its streaks run its own way, and it sits at its own tilt in the lead.
    uint seed = seedBits(u_seed);
    vec3 own = hash23(pane, seed);
    vec2 along = rotation(own.x * 6.2831853) * p;
    float streaks = gradientNoise(along * vec2(7.0, 1.6) + own.yz * 37.0, seed + 1u);
    float ripple = gradientNoise(along * 2.6 + own.zx * 41.0, seed + 2u);
    float uneven = u_refraction;
    vec2 bend = vec2(streaks, ripple) * 0.22 + (own.yz - 0.5) * 0.35 - toPoint * 0.25 * (own.x - 0.3);
    vec3 behind = readStackedPicture(u_input, size, (px + bend * uneven * paneSize) / size).rgb;

    vec3 paneColor = fetchStackedMap(u_input, origin, entryOf(pane) + ivec2(1, 0)).rgb;
    vec3 glass = glassColor(paneColor);
    glass += (behind - paneColor) * u_translucency;
    glass *= 1.0 + (own.y - 0.5) * 0.16;

    // Light comes through: fullest in the middle, dimmed by dirt along the lead.
    float dirt = exp(-max(inGlass, 0.0) / (0.09 * paneSize));
    glass *= 1.08 - 0.42 * dirt;
    glass *= 1.0 + uneven * (0.22 * streaks + 0.2 * ripple);
    // And falls on it: a sheen over each tilted pane, a bright rim where the cut edge faces the light.
    float shine = u_shine;
    vec2 tilt = rotation(own.z * 1.2 - 0.6) * kToLight;
    float sheen = smoothstep(-0.1, 0.75, dot(-toPoint, tilt) + 0.1 * ripple + 0.5 * (own.x - 0.6));
    float rimWidth = max(0.05 * paneSize, 0.7);
    float rim = exp(-max(inGlass, 0.0) / rimWidth) * max(dot(outward, kToLight), 0.0);
    float glint = smoothstep(0.38, 0.62, streaks + 0.4 * ripple) * smoothstep(0.0, 0.5, sheen);
    glass = clamp(glass, 0.0, 1.0);
    glass = blendScreen(glass, (0.06 + 0.8 * sqrt(glass)) * clamp(shine * (0.5 * sheen + 0.6 * rim + 0.35 * glint), 0.0, 0.9));

    // Lead: a round bar, brighter towards the light, with a dull grain.
    float across = clamp(fromBorder / max(halfLead, 0.001), 0.0, 1.0);
    float up = sqrt(max(1.0 - across * across, 0.0));
    float lit = dot(-outward, kToLight) * across * 0.55 + up * 0.6;
    float grain = gradientNoise(p * 9.0, seed + 3u);
    vec3 lead = u_leadColor * (0.62 + 0.75 * lit + 0.16 * grain);
    lead += shine * 0.22 * pow(clamp(lit, 0.0, 1.0), 6.0) * (0.7 + 0.6 * grain);

    vec3 rgb = mix(glass, lead, coverage(inGlass));
    fragColor = vec4(clamp(rgb, 0.0, 1.0), readStackedPicture(u_input, size, v_uv).a);
}
