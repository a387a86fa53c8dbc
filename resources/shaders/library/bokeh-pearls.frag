#version 440
// Lights out of focus: translucent discs, hexagons or hearts in three depths, added as light to the picture. Each takes
// its colour and strength from the picture behind it, and whether it is there at all from the mask.
// The lights are soft: where they are large they are drawn into a smaller picture first, which then comes in the place
// of the mask.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads; for the lights six for each of
// them over a pixel.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_mask;
layout(std140, binding = 2) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10, u_param11, u_param12, u_param13;
};
#define u_size u_param0.xy          // width and height, pixels
#define u_density u_param1.x        // 0..1
#define u_radius u_param2.x         // of the largest lights, pixels
#define u_softness u_param3.x       // of the outline, 0..1
#define u_rim u_param4.x            // brightness of the outline over the inside, 0..1
#define u_intensity u_param5.x      // 0..1
#define u_shape u_param6.x          // 0 disc, 1 hexagon, 2 heart
#define u_colorBoost u_param7.x     // saturation of the lights, 0..1
#define u_variation u_param8.x      // of the sizes, 0..1
#define u_overlap u_param9.x        // 0 apart, 1 over each other
#define u_colorWarmth u_param10.x   // -1 cool .. 1 warm
#define u_maskInverted u_param11.x  // 1 draws the lights outside the mask
#define u_step u_param12.x          // 0 all at once, 1 the lights alone, 2 lays them over the picture
#define u_reduction u_param13.x     // pixels of the picture for one of the lights

const int kDepths = 3;
const float kJitter = 0.6; // of a cell: with radii up to 0.66, and corners a little farther, no light leaves its cells

// Inigo Quilez, "2D distance functions".
float sdHexagon(vec2 p, float r)
{
    const vec3 k = vec3(-0.866025404, 0.5, 0.577350269);
    p = abs(p);
    p -= 2.0 * min(dot(k.xy, p), 0.0) * k.xy;
    p -= vec2(clamp(p.x, -k.z * r, k.z * r), r);
    return length(p) * sign(p.y);
}

// The point at (0, 0), the lobes up to y = 1.1; half a unit wide to either side. Inigo Quilez, as above.
float sdHeart(vec2 p)
{
    p.x = abs(p.x);
    if (p.x + p.y > 1.0)
        return length(p - vec2(0.25, 0.75)) - 0.353553391;
    vec2 edge = p - 0.5 * max(p.x + p.y, 0.0);
    return sqrt(min(dot(p - vec2(0.0, 1.0), p - vec2(0.0, 1.0)), dot(edge, edge))) * sign(p.x - p.y);
}

// For a light of radius 1.
float distanceTo(vec2 p, float turn)
{
    if (u_shape < 0.5)
        return sdCircle(p, 1.0);
    p = rotation(turn) * p;
    if (u_shape < 1.5)
        return sdHexagon(p, 0.87) - 0.05; // the blades of a diaphragm are a little round
    return 1.5 * sdHeart(vec2(p.x, 0.78 - p.y) / 1.5);
}

// The colour around a place, premultiplied: a mean of few pixels, so that noise makes no light.
vec4 colorAround(vec2 uv, vec2 reach)
{
    return 0.2 * (premultiplied(readInside(u_input, uv)) + premultiplied(readInside(u_input, uv + reach))
        + premultiplied(readInside(u_input, uv - reach))
        + premultiplied(readInside(u_input, uv + vec2(reach.x, -reach.y)))
        + premultiplied(readInside(u_input, uv + vec2(-reach.x, reach.y))));
}

// The light of one depth in linear colour. `scale` is of the radius, 0..1.
vec3 depthLight(vec2 px, float scale, float sharpness, uint seed)
{
    float fraction = mix(0.32, 0.66, u_overlap); // radius in cells
    float radius = max(u_radius * scale, 0.75);
    float cellSize = radius / fraction;
    vec2 place = px / cellSize;
    ivec2 base = ivec2(floor(place - 0.5));
    float spread = 0.7 * u_variation;
    float pixel = max(u_reduction, 1.0) / radius;
    vec3 sum = vec3(0.0);
    for (int i = 0; i < 4; ++i) {
        ivec2 cell = base + ivec2(i & 1, i >> 1);
        vec3 random = hash23(cell, seed);
        vec2 center = vec2(cell) + 0.5 + kJitter * (random.xy - 0.5);
        float size = 1.0 - spread * random.z;
        vec2 p = (place - center) / (fraction * size);
        if (dot(p, p) > 1.44)
            continue;
        float chance = hash21(cell, seed + 1u);
        // Lights come in groups.
        float group = smoothstep(0.3, 0.7, valueNoise((vec2(cell) + 0.5) * 0.45, seed + 2u));
        if (chance >= u_density * (0.25 + 1.0 * group))
            continue;
        float d = distanceTo(p, 0.6 * (random.x - 0.5));
        float edge = max(mix(0.02, 0.5, u_softness * sharpness), pixel / size);
        float body = 1.0 - smoothstep(-edge, min(edge, pixel / size), d);
        if (body <= 0.0)
            continue;

        vec2 uv = center * cellSize / u_size;
        float inside = texture(u_mask, uv).a;
        float mask = mix(inside, 1.0 - inside, u_maskInverted);
        vec4 behind = colorAround(uv, 0.3 * radius / u_size);
        vec3 color = toLinear(straight(behind).rgb) * behind.a;
        float light = linearLuminance(color);
        // The hue of the picture at full strength; where it is nearly grey, gold to rose, as of lamps.
        vec3 own = color / max(max(color.r, max(color.g, color.b)), 1e-4);
        float chroma = 1.0 - min(own.r, min(own.g, own.b));
        vec3 lamp = mix(vec3(1.0, 0.56, 0.14), vec3(1.0, 0.30, 0.22), chance / max(u_density, 1e-4));
        vec3 tint = mix(lamp, own, smoothstep(0.1, 0.5, chroma) * smoothstep(0.002, 0.03, light));
        tint = mix(vec3(1.0), tint, 0.4 + 0.6 * sqrt(u_colorBoost));
        tint *= mix(vec3(1.0), u_colorWarmth > 0.0 ? vec3(1.25, 0.85, 0.4) : vec3(0.45, 0.85, 1.35), abs(u_colorWarmth));
        float strength = (0.22 + 0.9 * smoothstep(0.0, 0.6, sqrt(light))) * (0.2 + 0.8 * random.y * random.y);
        // Brighter along the outline, as an overcorrected lens draws it.
        float rimWidth = 0.045 + 0.5 * edge;
        float rim = exp2(-pow((d + 0.7 * rimWidth) / rimWidth, 2.0));
        float face = mix(1.0, 0.72 + 0.28 * clamp(1.0 + d, 0.0, 1.0), u_rim) + 0.9 * rim * u_rim;
        sum += tint * (strength * mask * body * face);
    }
    return sum;
}

// What the lights leave of the darkness, from 0..1, linear.
vec3 lights(vec2 px)
{
    vec3 light = vec3(0.0);
    float scale = 1.0;
    for (int i = 0; i < kDepths; ++i) {
        // Farther lights are smaller, sharper and brighter.
        light += (0.55 + 0.25 * float(i)) * depthLight(px, scale, 1.0 - 0.25 * float(i), 11u + 7u * uint(i));
        scale *= mix(0.86, 0.52, u_variation);
    }
    return 1.0 - exp(-light * u_intensity * 1.7);
}

void main()
{
    vec2 px = v_uv * u_size;
    if (u_step > 0.5 && u_step < 1.5) {
        fragColor = vec4(sqrt(lights(px)), 1.0); // steps of the root are even to the eye
        return;
    }
    vec4 src = texture(u_input, v_uv);
    vec3 light = texture(u_mask, v_uv).rgb;
    light *= light;
    if (u_step < 0.5)
        light = lights(px);
    vec3 rgb = toEncoded(blendScreen(toLinear(src.rgb), light));
    fragColor = vec4(dot(light, vec3(1.0)) > 0.0 ? rgb : src.rgb, src.a);
}
