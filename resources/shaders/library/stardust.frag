#version 440
// Glitter: sparkling stars with four or six rays, and drifts of fine dust, added as light within a mask.
// In and out: straight alpha, (0, 0) top left. Alpha is kept, except that of the sparkles alone it is their light.
// Cost: two texture reads, two more for each star over a pixel.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_mask; // alpha: the mask; red: the drifts of dust, drawn in a step before
layout(std140, binding = 2) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9;
};
#define u_size u_param0.xy           // width and height, pixels
#define u_sparkleColor u_param1.rgb  // red, green, blue, 0..1
#define u_sparkSeed u_param2.x
#define u_fineSeed u_param3.x
#define u_sparkParams u_param4       // cell, pixels; density, 0..1; ray, pixels; 0 four, 1 six, 2 mixed rays
#define u_fineParams u_param5        // cell of a grain, pixels; density 0..1; diameter of a grain, pixels
#define u_styleParams u_param6       // glow 0..1; twinkle 0..1; variation of the colour 0..1
#define u_renderParams u_param7.xy   // x: how much bright places are preferred, 0..1; y: 1 draws u_mask
#define u_maskInverted u_param8.x    // 1 draws outside the mask
#define u_starsOnly u_param9.x       // 1 leaves the picture out

const float kJitter = 0.6;   // of a cell: 0.3 to either side, so that 0.7 are left to reach
const float kDustJitter = 0.44;
const float kTurn = 6.28318531;

float maskAt(vec2 uv)
{
    float inside = texture(u_mask, uv).a;
    return mix(inside, 1.0 - inside, u_maskInverted);
}

float preference(vec4 picture)
{
    return mix(1.0, smoothstep(0.15, 0.85, luminance(picture.rgb) * picture.a), u_renderParams.x);
}

// The colour of one sparkle, linear: the chosen one, with others to either side of its hue and some white ones.
vec3 sparkleColor(float random)
{
    float variation = u_styleParams.z;
    vec3 hsv = rgbToHsv(u_sparkleColor);
    float hue = hsv.x + variation * 0.35 * (random - 0.5);
    float saturation = clamp(max(hsv.y, 0.6 * variation) * (1.0 - 0.5 * variation * fract(random * 7.0)), 0.0, 1.0);
    return toLinear(hsvToRgb(vec3(hue, saturation, hsv.z)));
}

// The brightness of a star at p, in lengths of its rays; `pixel` is the size of a pixel there.
float starShape(vec2 p, float rays, float pixel)
{
    float r = length(p);
    float sector = kTurn / rays;
    float angle = atan(p.y, p.x + (r > 0.0 ? 0.0 : 1.0));
    float folded = abs(mod(angle + 0.5 * sector, sector) - 0.5 * sector);
    vec2 ray = r * vec2(cos(folded), sin(folded));
    float fade = max(1.0 - ray.x, 0.0);
    float thickness = 0.022 * fade + 0.09 * pow(fade, 8.0);
    float drawn = max(thickness, 0.7 * pixel); // thinner than a pixel: wider and paler instead
    float line = exp2(-1.5 * ray.y * ray.y / (drawn * drawn)) * min(thickness / drawn, 1.0) * fade * sqrt(fade);
    // Short rays between the long ones.
    float between = 0.5 * sector - folded;
    vec2 minor = r * vec2(cos(between), sin(between)) / 0.38;
    float minorFade = max(1.0 - minor.x, 0.0);
    float minorDrawn = max(0.05, 1.8 * pixel);
    float minorLine = exp2(-1.5 * minor.y * minor.y / (minorDrawn * minorDrawn)) * (0.05 / minorDrawn) * minorFade
        * minorFade;
    float core = max(0.055, 0.8 * pixel);
    float point = exp2(-2.0 * r * r / (core * core));
    float edge = max(1.0 - r, 0.0);
    float glow = u_styleParams.x * edge * edge * (0.10 / (0.12 + 6.0 * r * r) + 0.05);
    return 1.3 * point + line + 0.55 * minorLine + glow;
}

// Linear light of the stars of one size class.
vec3 stars(vec2 px, float scale, float density, uint seed)
{
    float cellSize = u_sparkParams.x * scale;
    vec2 place = px / cellSize;
    ivec2 base = ivec2(floor(place - 0.5));
    float reach = min(u_sparkParams.z * scale / cellSize, 0.7); // a ray in cells
    vec3 sum = vec3(0.0);
    for (int i = 0; i < 4; ++i) {
        ivec2 cell = base + ivec2(i & 1, i >> 1);
        vec3 random = hash23(cell, seed);
        vec2 center = vec2(cell) + 0.5 + kJitter * (random.xy - 0.5);
        float size = reach * mix(0.35, 1.0, random.z * random.z);
        vec2 p = (place - center) / size;
        if (dot(p, p) >= 1.0) // the test that spares most
            continue;
        vec3 character = hash23(cell, seed + 1u);
        if (character.x >= density)
            continue;
        vec2 uv = center * cellSize / u_size;
        float visible = maskAt(uv);
        if (visible <= 0.0)
            continue;
        visible *= preference(readInside(u_input, uv));
        float rays = u_sparkParams.w > 1.5 ? (character.y < 0.5 ? 4.0 : 6.0) : (u_sparkParams.w > 0.5 ? 6.0 : 4.0);
        float turn = (character.z - 0.5) * 0.35 * u_styleParams.y;
        float brightness = mix(1.0, 0.25 + 1.25 * character.z * character.z, u_styleParams.y);
        float shape = starShape(rotation(turn) * p, rays, 1.0 / (size * cellSize));
        // The hot middle is white, whatever the colour.
        vec3 color = mix(sparkleColor(random.z), vec3(1.0), clamp(shape - 0.7, 0.0, 1.0));
        sum += color * (2.2 * shape * brightness * visible);
    }
    return sum;
}

// Linear light of the grains of one size. Each lies whole within its own cell; turning them hides that.
vec3 dust(vec2 px, float scale, float density, uint seed)
{
    float cellSize = u_fineParams.x * scale;
    float radius = 0.5 * u_fineParams.z * scale;
    float drawn = max(radius, 0.6); // smaller than a pixel: larger and paler instead
    float pale = radius * radius / (drawn * drawn);
    vec2 place = mat2(0.8, 0.6, -0.6, 0.8) * px / cellSize;
    ivec2 cell = ivec2(floor(place));
    uvec3 bits = pcg3d(uvec3(cell, seed));
    float chance = float(int(bits.x & 0xffffu)) / 65536.0; // bits that the place leaves
    if (chance >= density)
        return vec3(0.0);
    vec3 random = unitFloat(bits);
    vec2 center = vec2(cell) + 0.5 + kDustJitter * (random.xy - 0.5);
    float d = length(place - center) * cellSize / (drawn * mix(1.0, 0.6, fract(chance * 389.0)));
    if (d >= 2.0)
        return vec3(0.0);
    float sparkle = mix(0.7, 0.06 + 3.2 * pow(random.z, 5.0), u_styleParams.y);
    float light = (exp2(-2.0 * d * d) - exp2(-8.0)) * pale * sparkle;
    return mix(sparkleColor(fract(chance * 977.0)), vec3(1.0), 0.35 * random.z * random.z) * light;
}

void main()
{
    vec2 px = v_uv * u_size;
    uint fineSeed = seedBits(u_fineSeed);
    if (u_renderParams.y > 0.5) {
        float drift = valueFbm(px / max(length(u_size), 1.0) * 9.0, 3.0, fineSeed);
        fragColor = vec4(vec3(drift), texture(u_mask, v_uv).a);
        return;
    }
    vec4 src = texture(u_input, v_uv);
    uint sparkSeed = seedBits(u_sparkSeed);

    vec3 light = stars(px, 1.0, 0.55 * u_sparkParams.y, sparkSeed) + stars(px, 0.42, 0.8 * u_sparkParams.y, sparkSeed + 2u);
    float amount = maskAt(v_uv) * preference(src);
    if (u_fineParams.y > 0.0 && amount > 0.0) {
        float density = u_fineParams.y * (0.25 + 1.5 * smoothstep(0.35, 0.75, texture(u_mask, v_uv).r)) * amount;
        light += 1.5 * (dust(px, 1.0, 0.5 * density, fineSeed + 11u) + dust(px, 0.55, density, fineSeed + 13u));
    }

    if (u_starsOnly > 0.5) {
        vec3 shown = 1.0 - exp(-light);
        float alpha = max(shown.r, max(shown.g, shown.b));
        fragColor = vec4(toEncoded(shown / max(alpha, 1e-4)), toEncoded(vec3(alpha)).r * src.a);
        return;
    }
    if (dot(light, vec3(1.0)) > 0.0)
        src.rgb = toEncoded(blendScreen(toLinear(src.rgb), 1.0 - exp(-light)));
    fragColor = src;
}
