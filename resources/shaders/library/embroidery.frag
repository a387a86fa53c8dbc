#version 440
// Rows of shiny thread over woven fabric. There is one endless field of parallel stitches for each of eight angles; of
// each field those stitches are sewn whose middle lies where the contours run its way. So neighbours lie side by side,
// and forms of different direction meet with whole stitches.
// Two passes: the first makes a map of directions from forms with clear contours; the second reads it beside the forms
// (common/stacked.glsl).
// In and out: straight alpha, (0, 0) top left. Cost: three reads a pixel of the map, ten a pixel.
#extension GL_GOOGLE_include_directive : require
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
#include "../common/shapes.glsl"
#include "../common/stacked.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10, u_param11;
};
#define u_size u_param0.xy           // of the picture, pixels
#define u_stitchSize u_param1.x      // width of a thread, pixels
#define u_direction u_param2.x       // of stitches where no contour leads them, radians, clockwise from right
#define u_followContours u_param3.x  // 0..1
#define u_threadSheen u_param4.x     // 0..1
#define u_fabricTexture u_param5.x   // relief of the fabric, 0..1
#define u_colorDepth u_param6.x      // number of thread colours, 0 few to 1 many
#define u_fabricColor u_param7.rgb   // red, green, blue, 0..1
#define u_seed u_param8.x
#define u_renderScale u_param9.x     // not read, as all sizes come in pixels
#define u_formsSize u_param10.xy     // of the forms, pixels
#define u_step u_param11.x           // 1 draws the map of directions, 0 the stitches

const int kAngles = 8;
const float kPi = 3.14159265;
const float kLength = 6.5;      // of a stitch, in thread widths
const float kTolerance = 1.25;  // of the direction, in halves of the step between two angles: more than 1 overlaps
const vec2 kLight = vec2(-0.6, -0.8); // towards the light, in the plane

float light(vec2 uv) { return luminance(texture(u_input, uv).rgb); }

// The direction of stitches at a place as the cosine and sine of its doubled angle, in which opposite directions are
// the same: along the contour where the gradient is clear, else the given one.
vec2 doubledDirection(vec2 uv, vec2 reach, vec2 wanted, float follow)
{
    // The slope over an equilateral triangle, times twice the reach.
    float top = light(uv - vec2(0.0, reach.y));
    float left = light(uv + vec2(-0.8660254, 0.5) * reach);
    float right = light(uv + vec2(0.8660254, 0.5) * reach);
    vec2 g = vec2(1.1547005 * (right - left), 0.6666667 * (left + right - 2.0 * top));
    float clarity = dot(g, g);
    vec2 contour = vec2(g.y * g.y - g.x * g.x, -2.0 * g.x * g.y) / max(clarity, 1e-6);
    vec2 mixed = mix(wanted, contour, follow * smoothstep(0.0015, 0.009, clarity));
    return mixed * inversesqrt(max(dot(mixed, mixed), 1e-12));
}

// A sine to a twentieth, by parabolas.
float wave(float x)
{
    float t = 2.0 * fract(x * 0.15915494) - 1.0;
    return 4.0 * t * (abs(t) - 1.0);
}

// Plain weave: alternating warp and weft, lit from the top left.
vec3 fabric(vec2 p, vec3 color, float relief, uint seed)
{
    vec2 q = p / 0.62;
    vec2 cell = floor(q);
    vec2 f = fract(q) - 0.5;
    bool warp = mod(cell.x + cell.y, 2.0) < 0.5;
    float across = warp ? f.x : f.y;
    float along = warp ? f.y : f.x;
    float height = sqrt(max(1.0 - 3.2 * across * across, 0.0)) * (1.0 - 1.1 * along * along);
    float slub = valueNoise(warp ? vec2(cell.x, q.y * 0.2) : vec2(q.x * 0.2, cell.y + 57.0), seed);
    float shade = mix(0.45, 1.06, height) * mix(0.9, 1.08, slub);
    return color * mix(1.0, shade, relief);
}

// The stitch of a field that covers a place.
struct Stitch
{
    ivec2 id;
    vec2 centre; // in the field's coordinates: along, across
    float halfLength;
};

Stitch stitchAt(vec2 q, uint seed)
{
    float row = floor(q.y);
    vec2 random = hash22(ivec2(int(row), 0), seed);
    // Each row has stitches of its own length, so that holes never line up.
    float size = kLength * mix(0.8, 1.25, random.x);
    float index = floor(q.x / size + random.y);
    Stitch stitch;
    stitch.id = ivec2(int(index), int(row));
    stitch.centre = vec2((index + 0.5 - random.y) * size, row + 0.5);
    stitch.halfLength = 0.5 * size;
    return stitch;
}

void main()
{
    vec2 size = max(u_size, 1.0);
    float width = max(u_stitchSize, 0.5);
    float follow = clamp(u_followContours, 0.0, 1.0);
    float sheen = clamp(u_threadSheen, 0.0, 1.0);
    uint seed = seedBits(u_seed);

    vec2 p = v_uv * size / width; // in thread widths
    float pixel = 1.0 / width;    // a pixel in that unit
    vec2 unit = width / size;     // the unit in uv
    vec2 forms = u_formsSize;
    vec2 reach = 1.8 * unit;
    vec2 wanted = vec2(cos(2.0 * u_direction), sin(2.0 * u_direction));
    if (u_step > 0.5) {
        fragColor = vec4(0.5 + 0.5 * doubledDirection(v_uv, reach, wanted, follow), 0.0, 1.0);
        return;
    }
    float closest = cos(kTolerance * kPi / float(kAngles));

    float top = -4.0; // height of the highest thread
    vec2 topUv = v_uv;
    vec2 topPlace = vec2(0.0); // along in half lengths, across in half widths
    vec2 direction = vec2(1.0, 0.0);
    float run = 0.0;
    float random = 0.5;
    float full = 1.0; // how much of the fabric it covers
    mat2 turned = rotation(kPi / float(kAngles));
    vec2 d = vec2(cos(u_direction), sin(u_direction));
    for (int i = 0; i < kAngles; ++i, d = turned * d) {
        vec2 doubled = vec2(d.x * d.x - d.y * d.y, 2.0 * d.x * d.y);
        // Rows are not ruled: they sway a little.
        vec2 q = vec2(dot(p, d), d.x * p.y - d.y * p.x);
        q.y += 0.4 * wave(q.x * 0.19 + q.y * 0.11 + float(i));
        Stitch stitch = stitchAt(q, seed + uint(2 * i));
        vec2 offset = q - stitch.centre;
        vec2 uv = v_uv - (offset.x * d + offset.y * vec2(-d.y, d.x)) * unit;
        vec2 sewing = readStackedMap(u_input, forms, forms, uv).xy - 0.5;
        float agreement = dot(sewing, doubled) * inversesqrt(max(dot(sewing, sewing), 1e-6));
        // Where no middle agrees, the one that agrees most lies underneath.
        bool sewn = agreement > closest;
        float lift = hash11(uint(stitch.id.x) * 2654435769u + uint(stitch.id.y) * 2246822519u + seed + uint(i));
        vec2 place = vec2(offset.x / max(stitch.halfLength, 0.1), offset.y * 2.0);
        float height = sewn ? lift + 0.4 * (1.0 - place.x * place.x) - 0.25 * place.y * place.y : agreement - 2.5;
        if (height > top) {
            top = height;
            topUv = uv;
            topPlace = place;
            direction = d;
            run = offset.x;
            random = lift;
            full = sewn ? 1.0 : 0.75;
        }
    }
    // Threads thin towards the holes.
    float squared = topPlace.x * topPlace.x;
    float rim = 0.5 * sqrt(max(1.0 - 0.7 * squared * squared * squared, 0.0));
    float cover = full * clamp(0.5 - (0.5 * abs(topPlace.y) - rim) / max(pixel, 0.08), 0.0, 1.0);

    // One colour a stitch, but for some of the change along it, for which a real one would be split.
    vec2 along = v_uv - topPlace.y * 0.5 * vec2(-direction.y, direction.x) * unit;
    vec4 local = readStackedPicture(u_input, forms, along);
    vec3 threadColor = mix(readStackedPicture(u_input, forms, topUv).rgb, local.rgb, 0.35);

    // Thread colours of a palette: a step in lightness and in the two colour axes.
    vec3 steps = mix(5.0, 30.0, u_colorDepth) * vec3(1.0, 2.0, 2.0);
    vec3 lab = encodedToOklab(threadColor) + vec3((random - 0.5) * 0.045, 0.0, 0.0);
    lab = floor(lab * steps + 0.5) / steps;
    lab.yz *= 1.1;
    vec3 thread = oklabToLinear(vec3(0.03 + 0.97 * lab.x, lab.yz));

    // A twisted cylinder: the plies run slantwise round it.
    float across = clamp(topPlace.y, -1.0, 1.0);
    float ends = topPlace.x * topPlace.x;
    float roundness = sqrt(max(1.0 - across * across, 0.0));
    float plies = 0.5 + 0.5 * sin((run * 1.1 + across * 0.5 + random) * 6.28318531);
    plies = mix(0.5, plies, clamp(width * 0.35 - 0.7, 0.0, 1.0));
    vec2 side = vec2(-direction.y, direction.x);
    vec3 normal = normalize(vec3(side * across * 0.9 + direction * topPlace.x * ends * 0.5, 0.35 + roundness));
    vec3 toLight = normalize(vec3(kLight, 1.2));
    float diffuse = max(dot(normal, toLight), 0.0);
    // Light glides along fibres: brightest where they lie across it (Kajiya and Kay, "Rendering fur", 1989).
    vec3 tangent = normalize(vec3(direction, -0.55 * topPlace.x));
    float alignment = dot(tangent, normalize(toLight + vec3(0.0, 0.0, 1.0)));
    float shine = max(1.0 - alignment * alignment, 0.0);
    float squaredShine = shine * shine;
    float gloss = squaredShine * squaredShine; // the tenth power
    gloss *= gloss * squaredShine * roundness;
    float lit = mix(0.42, 1.22, diffuse) * mix(0.90, 1.06, plies) * mix(0.62, 1.0, roundness) * (1.0 - 0.22 * ends * ends);
    vec3 shiny = thread * lit * (1.0 + sheen * (0.75 * gloss - 0.3));
    shiny += sheen * 0.09 * gloss * gloss * mix(vec3(1.0), thread, 0.4) * mix(0.6, 1.0, plies);

    // Fabric between threads lies in their shadow.
    vec3 ground = toLinear(fabric(p, u_fabricColor, u_fabricTexture, seed + 90u)) * mix(vec3(0.25), thread, 0.4);
    fragColor = vec4(toEncoded(clamp(mix(ground, shiny, cover), 0.0, 1.0)), local.a);
}
