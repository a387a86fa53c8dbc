#version 440
// A broken signal. Melt: columns of the picture run down in strings. Digital: blocks sit in wrong places, lose detail
// and colours. Analog: a worn tape whose lines tear sideways, with noise and bled colour.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: four texture reads, up to six noises, nearly all
// along a line.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6;
};
#define u_size u_param0.xy         // width and height, pixels
#define u_tearAmount u_param1.x    // how much of the picture breaks, 0..1
#define u_blockSize u_param2.x     // pixels
#define u_displacement u_param3.x  // the farthest that anything moves, pixels
#define u_rgbSplit u_param4.x      // between red and blue, pixels
#define u_seed u_param5.x          // 0..999
#define u_mode u_param6.x          // 0 melt, 1 digital, 2 analog

// A place of the picture and what has become of the signal there.
struct Signal
{
    vec2 px;      // where the picture is read, pixels
    float split;  // factor of the colour split
    float light;  // added
    float gain;
    float swap;   // 1: the colours have changed places
};

Signal melted(vec2 px, float block, float amount, float reach, uint seed)
{
    // Strings of different widths; each begins at its own height and gets longer on the way down.
    float x = px.x / block;
    float wide = lineNoise(x * 0.45, seed);
    float thin = lineNoise(x * 2.3, seed + 1u);
    float fine = lineNoise(x * 9.0, seed + 2u);
    float string = 0.68 * wide + 0.26 * thin + 0.06 * fine;
    float start = u_size.y * mix(1.05, -0.25, amount)
        + 6.0 * block * (lineNoise(x * 0.2, seed + 3u) - 0.5) + 4.0 * block * (0.5 - string);
    float below = max(px.y - start, 0.0);
    float pull = smoothstep(0.28, 0.72, string);
    float run = (1.0 - exp(-below / max(3.0 * reach * pull + block, 1.0))) * reach * 3.2 * pull;
    run = min(run, 0.97 * below);
    // Sideways the strings sway a little.
    float sway = 0.12 * reach * (valueNoise(vec2(x * 0.8, px.y / (5.0 * block)), seed + 4u) - 0.5)
        * smoothstep(0.0, 6.0 * block, below);
    return Signal(vec2(px.x + sway, px.y - run), 0.25 + 1.5 * smoothstep(0.0, 2.0 * reach + 1.0, run), 0.0,
                  1.0 + 0.1 * (string - 0.5) * step(0.001, below), 0.0);
}

Signal scrambled(vec2 px, float block, float amount, float reach, uint seed)
{
    Signal result = Signal(px, 0.35, 0.0, 1.0, 0.0);
    // From large blocks to small ones; where several break, the small ones win.
    for (int level = 0; level < 3; ++level) {
        vec2 cellSize = block * (level == 0 ? vec2(6.0, 1.5) : level == 1 ? vec2(2.5, 1.0) : vec2(1.0, 0.5));
        ivec2 cell = ivec2(floor(px / cellSize));
        uint layer = seed + uint(level) * 7u;
        // Faults come in bands.
        float band = lineNoise((float(cell.y) + 0.5) * cellSize.y / (block * 5.0), seed + 40u);
        float likely = amount * smoothstep(0.62 - 0.5 * amount, 0.9, band + 0.25 * amount);
        vec3 h = hash23(cell, layer);
        if (h.x < likely * (level == 0 ? 0.5 : 0.42)) {
            vec3 k = hash23(cell, layer + 3u);
            vec2 jump = vec2(k.x - 0.5, 0.35 * (k.y - 0.5)) * 2.0 * reach;
            result.px = px + jump;
            result.split = 1.6;
            result.gain = 0.9 + 0.3 * k.z;
            result.swap = step(0.86, h.y);
            if (h.z < 0.3) { // detail lost
                vec2 grain = vec2(block * (level == 2 ? 0.125 : 0.25));
                result.px = (floor(result.px / grain) + 0.5) * grain;
            } else if (h.z > 0.84) { // one column drawn out
                result.px.x = (float(cell.x) + 0.5) * cellSize.x + jump.x;
            }
        }
    }
    return result;
}

Signal taped(vec2 px, float block, float amount, float reach, uint seed)
{
    float lineHeight = max(0.06 * block, 1.0);
    float line = floor(px.y / lineHeight);
    float y = px.y / block;
    float jitter = hash11(int(line), seed) - 0.5;
    float slow = lineNoise(y * 0.35, seed + 1u) - 0.5;
    float worn = lineNoise(y * 0.24, seed + 2u) + 0.22 * lineNoise(y * 0.9, seed + 3u);
    float band = smoothstep(1.0 - 0.72 * amount, 1.1 - 0.6 * amount, worn);
    float skew = lineNoise(y * 0.7, seed + 4u) - 0.5;
    float move = amount * (0.12 * reach * slow + 0.03 * reach * jitter) + band * reach * (1.7 * skew + 0.35 * jitter);
    // Dropouts: short white dashes where the band has torn.
    ivec2 dash = ivec2(floor(vec2((px.x + move) / (0.7 * block) + 13.0 * jitter, line)));
    float drop = step(1.0 - 0.05 * band - 0.002 * amount, hash21(dash, seed + 5u));
    float along = fract((px.x + move) / (0.7 * block) + 13.0 * jitter);
    float snow = drop * (1.0 - along) * (1.0 - along) * 0.8;
    float scan = 0.5 + 0.5 * cos(6.28318531 * px.y / (2.0 * lineHeight));
    return Signal(px + vec2(move, 0.0), 1.0 + 0.9 * band, snow, 1.0 - 0.14 * amount * scan, 0.0);
}

// The picture goes on, mirrored, beyond its edges.
vec4 read(vec2 px) { return readInside(u_input, abs(mod(px / u_size + 1.0, 2.0) - 1.0)); }

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 px = v_uv * u_size;
    float amount = u_tearAmount;
    float block = max(u_blockSize, 1.0);
    float reach = u_displacement;
    uint seed = seedBits(u_seed);
    int mode = int(u_mode + 0.5);

    Signal signal;
    if (mode == 0)
        signal = melted(px, block, amount, reach, seed);
    else if (mode == 1)
        signal = scrambled(px, block, amount, reach, seed);
    else
        signal = taped(px, block, amount, reach, seed);

    vec2 apart = vec2(u_rgbSplit * signal.split, 0.0);
    vec4 red = read(signal.px - apart);
    vec4 green = read(signal.px);
    vec4 blue = read(signal.px + apart);
    vec3 rgb = vec3(mix(src.r, red.r, red.a), mix(src.g, green.g, green.a), mix(src.b, blue.b, blue.a));
    rgb = mix(rgb, rgb.gbr, signal.swap) * signal.gain + signal.light;
    fragColor = vec4(clamp(rgb, 0.0, 1.0), src.a);
}
