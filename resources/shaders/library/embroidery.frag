#version 440
// Long and short stitches of shiny thread over woven fabric. A stitch lies around each point of a jittered grid, takes
// its colour there and follows the contours; of those that cross a pixel, the highest shows.
// In and out: straight alpha, (0, 0) top left; alpha is kept. The input should be softened by about half a stitch
// width, so that a read is the mean of what a thread covers. Cost: 130 texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0;  // size: width and height, pixels
    vec4 u_param1;  // stitchSize: width of a thread, pixels
    vec4 u_param2;  // direction: of stitches where no contour leads them, radians, clockwise from right
    vec4 u_param3;  // followContours: 0..1
    vec4 u_param4;  // threadSheen: 0..1
    vec4 u_param5;  // fabricTexture: relief of the fabric, 0..1
    vec4 u_param6;  // colorDepth: number of thread colours, 0 few to 1 many
    vec4 u_param7;  // fabricColor: red, green, blue, 0..1
    vec4 u_param8;  // seed
    vec4 u_param9;  // renderScale: pixels for a unit of the layer
};

const float kPitch = 1.45;     // of the grid, in thread widths
const float kHalfLength = 2.7; // of a stitch, in thread widths
const float kHalfWidth = 0.56;
const vec2 kLight = vec2(-0.6, -0.8); // towards the light, in the plane

float light(vec2 uv) { return luminance(readInside(u_input, uv).rgb); }

// The unit direction of a stitch: along the contour where the gradient is clear, else the given one. Works on doubled
// angles, in which opposite directions are the same and can be mixed.
vec2 stitchDirection(vec2 uv, vec2 reach, float angle, float follow)
{
    vec2 g = vec2(light(uv + vec2(reach.x, 0.0)) - light(uv - vec2(reach.x, 0.0)),
                  light(uv + vec2(0.0, reach.y)) - light(uv - vec2(0.0, reach.y)));
    vec2 contour = vec2(g.y * g.y - g.x * g.x, -2.0 * g.x * g.y);
    vec2 wanted = vec2(cos(2.0 * angle), sin(2.0 * angle));
    vec2 doubled = 400.0 * follow * contour + wanted * mix(1.0, 0.02, follow);
    doubled *= inversesqrt(max(dot(doubled, doubled), 1e-12));
    vec2 direction = vec2(sqrt(max(0.5 + 0.5 * doubled.x, 0.0)), sqrt(max(0.5 - 0.5 * doubled.x, 0.0)));
    return doubled.y < 0.0 ? vec2(direction.x, -direction.y) : direction;
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

void main()
{
    vec2 size = max(u_param0.xy, 1.0);
    float width = max(u_param1.x, 0.5);
    float follow = clamp(u_param3.x, 0.0, 1.0);
    float sheen = clamp(u_param4.x, 0.0, 1.0);
    uint seed = seedBits(u_param8.x);
    float alpha = texture(u_input, v_uv).a;

    vec2 p = v_uv * size / width; // in thread widths
    float pixel = 1.0 / width;    // a pixel in that unit
    vec2 unit = width / size;     // the unit in uv
    vec2 grid = p / kPitch;
    ivec2 home = ivec2(floor(grid));
    vec2 reach = 1.6 * unit;

    float top = -1.0;      // height of the highest thread
    float second = 0.0;    // coverage below, which casts no light through
    vec3 threadColor = vec3(0.0);
    float cover = 0.0;
    float across = 0.0;
    float along = 0.0;
    vec2 direction = vec2(1.0, 0.0);
    float twist = 0.0;
    float shadow = 0.0;
    for (int y = -2; y <= 2; ++y) {
        for (int x = -2; x <= 2; ++x) {
            ivec2 cell = home + ivec2(x, y);
            vec3 random = hash23(cell, seed);
            vec2 centre = (vec2(cell) + 0.5 + 0.7 * (random.xy - 0.5)) * kPitch;
            vec2 uv = centre * unit;
            float angle = u_param2.x + (random.z - 0.5) * 0.35;
            vec2 d = stitchDirection(uv, reach, angle, follow);
            vec2 q = p - centre;
            float a = dot(q, d);
            float b = d.x * q.y - d.y * q.x;
            float halfLength = kHalfLength * mix(0.75, 1.0, random.x);
            float ends = abs(a) / halfLength;
            // The thread thins where it dives into the fabric.
            float halfWidth = kHalfWidth * sqrt(max(1.0 - 0.55 * ends * ends * ends * ends, 0.05));
            float distance = max(abs(b) - halfWidth, abs(a) - halfLength);
            float c = clamp(0.5 - distance / pixel, 0.0, 1.0);
            float height = random.z + 0.35 * (1.0 - ends * ends);
            // A soft shadow on whatever is lower, away from the light.
            float shade = max(abs(b + 0.22 * (d.x * kLight.y - d.y * kLight.x)) - halfWidth, abs(a) - halfLength);
            if (c > 0.0 && height > top) {
                threadColor = readInside(u_input, uv).rgb;
                top = height;
                cover = max(cover, c);
                across = clamp(b / halfWidth, -1.0, 1.0);
                along = a;
                direction = d;
                twist = random.y;
                shadow = 0.0;
            } else if (height > top) {
                shadow = max(shadow, 1.0 - smoothstep(0.0, 0.45, shade));
            }
        }
    }

    // Thread colours of a palette: a step in lightness and in the two colour axes.
    float shades = mix(5.0, 26.0, u_param6.x);
    vec3 lab = encodedToOklab(threadColor);
    vec3 stepped = floor(lab * vec3(shades, 2.0 * shades, 2.0 * shades) + 0.5) / vec3(shades, 2.0 * shades, 2.0 * shades);
    stepped.yz *= 1.12;
    vec3 thread = oklabToLinear(stepped);

    // A twisted cylinder: the plies run slantwise round it.
    float roundness = sqrt(max(1.0 - across * across, 0.0));
    float plies = 0.5 + 0.5 * sin((along * 1.5 + across * 0.55 + twist) * 6.28318531);
    vec2 side = vec2(-direction.y, direction.x);
    vec3 normal = normalize(vec3(side * across * 0.95, 0.25 + roundness));
    vec3 toLight = normalize(vec3(kLight, 1.1));
    float diffuse = max(dot(normal, toLight), 0.0);
    // Light glides along fibres: brightest where they lie across it (Kajiya and Kay, "Rendering fur", 1989).
    vec3 tangent = normalize(vec3(direction, -0.18 * along / kHalfLength));
    vec3 halfway = normalize(toLight + vec3(0.0, 0.0, 1.0));
    float alignment = dot(tangent, halfway);
    float gloss = pow(max(1.0 - alignment * alignment, 0.0), 14.0) * roundness * roundness;
    float lit = mix(0.30, 1.16, diffuse) * mix(0.86, 1.06, plies) * mix(0.55, 1.0, roundness);
    lit *= 1.0 - 0.45 * shadow;
    vec3 shiny = thread * lit * (1.0 + 0.5 * sheen * (gloss - 0.3)) + sheen * gloss * 0.10 * mix(vec3(1.0), thread, 0.5) * mix(0.6, 1.0, plies);

    vec3 ground = toLinear(fabric(p, u_param7.rgb, u_param5.x, seed + 1u)) * (1.0 - 0.6 * shadow);
    fragColor = vec4(toEncoded(clamp(mix(ground, shiny, cover), 0.0, 1.0)), alpha);
}
