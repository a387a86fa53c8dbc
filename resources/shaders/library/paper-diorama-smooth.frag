#version 440
// Smooths along a line without mixing what lies on both sides of an edge: of the reaches ahead and behind, the calmer
// one counts (Kuwahara; the soft choice is that of Papari, Petkov and Campisi, "Artistic Edge and Corner Enhancing
// Smoothing", 2007). Passes in several directions leave flat patches with crisp borders; passes along the contours draw
// out strokes.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: up to 13 texture reads, by
// the radius; along the contours 16 more.
#extension GL_GOOGLE_include_directive : require
#include "../common/sampling.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2, u_param3; };
#define u_size u_param0.xy       // of the result, pixels
#define u_direction u_param1.xy  // unit vector, y downward; (0, 0) follows the contours of the picture
#define u_radiusPx u_param2.x    // reach to either side, pixels of the result
#define u_detail u_param3.x      // how much of what differs in colour stays apart, 0..1

const int kMostTaps = 6;         // of each reach
const float kCalm = 900.0;       // times the variance: 1 where a reach begins to count as an edge
const float kKeenest = 260.0;    // how sharply colours are told apart at full detail

// Sums over one reach: premultiplied colour and its squares, both divided by the weight when done.
struct Reach
{
    vec3 sum;
    vec3 squares;
    float weight;
};

void add(inout Reach reach, vec4 color, float weight)
{
    float w = weight * color.a;
    reach.sum += color.rgb * w;
    reach.squares += color.rgb * color.rgb * w;
    reach.weight += w;
}

void main()
{
    vec2 texel = 1.0 / max(u_size, 1.0);
    vec4 middle = texture(u_input, v_uv);
    float radius = clamp(u_radiusPx, 0.0, 64.0);
    float keenness = kKeenest * u_detail * u_detail;
    vec2 direction = u_direction;
    if (dot(direction, direction) < 0.25)
        direction = contourDirection(structureTensor(u_input, v_uv, texel * max(0.4 * radius, 1.0))).xy;

    int taps = int(clamp(ceil(0.6 * radius), 1.0, float(kMostTaps)));
    vec2 stride = direction * texel * radius / float(taps);
    Reach ahead = Reach(vec3(0.0), vec3(0.0), 0.0);
    add(ahead, middle, 1.0);
    Reach behind = ahead;
    for (int i = 1; i <= taps; ++i) {
        float t = float(i) / float(taps);
        float near = 1.0 / (1.0 + 3.0 * t * t);
        vec4 a = texture(u_input, v_uv + stride * float(i));
        vec4 b = texture(u_input, v_uv - stride * float(i));
        vec3 da = a.rgb - middle.rgb;
        vec3 db = b.rgb - middle.rgb;
        add(ahead, a, near / (1.0 + keenness * dot(da, da)));
        add(behind, b, near / (1.0 + keenness * dot(db, db)));
    }

    vec3 sum = vec3(0.0);
    float total = 0.0;
    for (int i = 0; i < 2; ++i) {
        Reach reach = i == 0 ? ahead : behind;
        if (reach.weight <= 1e-4)
            continue;
        vec3 mean = reach.sum / reach.weight;
        vec3 variance = max(reach.squares / reach.weight - mean * mean, 0.0);
        float unrest = kCalm * (variance.r + variance.g + variance.b) / 3.0;
        float weight = 1.0 / (1.0 + unrest * unrest);
        sum += mean * weight;
        total += weight;
    }
    fragColor = vec4(total > 1e-9 ? sum / total : middle.rgb, middle.a);
}
