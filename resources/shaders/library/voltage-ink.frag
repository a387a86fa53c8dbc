#version 440
// The edges of the picture as glowing discharges over its darkened self, in two passes: the first draws how bright the
// lines are, at a reduced size, to be blurred; the second reads that map beside the picture (common/stacked.glsl).
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: 16 reads a pixel of the map, ten a pixel.
#extension GL_GOOGLE_include_directive : require
#include "../common/noise.glsl"
#include "../common/sampling.glsl"
#include "../common/stacked.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0;  // size: xy of the picture; zw of the map; pixels
    vec4 u_param1;  // edge threshold: 0..1
    vec4 u_param2;  // line intensity: 0..1
    vec4 u_param3;  // glow radius: pixels; 0 makes the map
    vec4 u_param4;  // glow colour
    vec4 u_param5;  // background dim: 0..1
};

const float kLineReach = 0.75; // of the gradient, thousandths of the diagonal

float toneAt(vec2 uv)
{
    vec4 color = readStackedPicture(u_input, u_param0.xy, uv);
    return sqrt(luminance(color.rgb) + 0.01) * color.a; // the root draws shadows like lights
}

// How strong the edge here is, 0..4, along an eight-neighbour Sobel pair.
float edgeAt(vec2 uv)
{
    vec2 reach = max(kLineReach * length(u_param0.xy) / 1000.0, 0.75) / u_param0.xy;
    float nw = toneAt(uv - reach);
    float n = toneAt(uv - vec2(0.0, reach.y));
    float ne = toneAt(uv + vec2(reach.x, -reach.y));
    float w = toneAt(uv - vec2(reach.x, 0.0));
    float e = toneAt(uv + vec2(reach.x, 0.0));
    float sw = toneAt(uv + vec2(-reach.x, reach.y));
    float s = toneAt(uv + vec2(0.0, reach.y));
    float se = toneAt(uv + reach);
    return length(vec2(ne + 2.0 * e + se - nw - 2.0 * w - sw, sw + 2.0 * s + se - nw - 2.0 * n - ne));
}

float lineAt(vec2 uv)
{
    float low = mix(0.12, 1.6, u_param1.x * u_param1.x);
    return smoothstep(low, low * 2.0 + 0.3, edgeAt(uv));
}

void main()
{
    if (u_param3.x <= 0.0) {
        vec2 quarter = 0.25 / u_param0.zw;
        float line = 0.5 * (lineAt(v_uv + quarter) + lineAt(v_uv - quarter));
        fragColor = vec4(vec3(line), 1.0);
        return;
    }

    vec2 size = u_param0.xy;
    vec4 src = readStackedPicture(u_input, size, v_uv);
    float line = lineAt(v_uv);
    float glow = readStackedMap(u_input, size, u_param0.zw, v_uv).r;
    // Eight bits of a soft map would show as rings in the dark.
    glow = max(glow + (hash21(ivec2(gl_FragCoord.xy), 5u) - 0.5) / 255.0, 0.0);

    // What the glow reaches of the picture is lit by it; the rest sinks into a night of the opposite kind.
    vec3 tint = toLinear(u_param4.rgb);
    vec3 base = toLinear(src.rgb);
    float tone = linearLuminance(base);
    float dim = u_param5.x;
    vec3 night = mix(base, vec3(tone), 0.55 * dim) * mix(vec3(1.0), 0.35 + 0.65 * tint + vec3(0.1, 0.0, 0.16), dim);
    vec3 light = night * mix(1.0, 0.035, dim);

    // The current flickers along its way.
    float flicker = 0.8 + 0.6 * gradientNoise(v_uv * size / (length(size) * 0.02), 21u);
    float power = u_param2.x * 2.0;
    float halo = glow * glow * 2.2 + glow * 0.75;
    light += tint * power * halo * flicker * (0.75 + 1.5 * tone);
    vec3 core = mix(tint, vec3(1.0), 0.25 + 0.7 * smoothstep(0.35, 1.0, line));
    light += core * power * line * (0.55 + 0.45 * flicker);

    // Bright light turns white before it clips.
    vec3 shown = 1.0 - exp(-light * 1.25);
    shown = mix(light, shown, smoothstep(0.0, 0.3, max(dim, line + halo)));
    fragColor = vec4(clamp(toEncoded(shown), 0.0, 1.0), src.a);
}
