#version 440
// Sheets of cut paper, one for each range of tones, the dark ones in front, with their shadows on those behind.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: 11 texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/noise.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_soft;
layout(std140, binding = 2) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6;
};
#define u_size u_param0.xy            // width and height, pixels
#define u_renderScale u_param1.x      // pixels for one of the layer
#define u_layers u_param2.x           // a whole number, at least 2
#define u_depthPx u_param3.x          // length of the shadow of one sheet on the next, pixels
#define u_lightDirection u_param4.xy  // unit vector towards the light, y grows downward
#define u_palette u_param5.x          // 0 original, 1 dusk, 2 forest, 3 ocean, 4 candy, 5 kraft, 6 white
#define u_paperTexture u_param6.x     // 0..1

// From the sheet at the back to the one in front.
const vec3 kPalettes[30] =
    vec3[](vec3(0.992, 0.918, 0.796), vec3(0.965, 0.718, 0.494), vec3(0.855, 0.439, 0.424), vec3(0.486, 0.251, 0.412),
           vec3(0.157, 0.129, 0.267),
           vec3(0.937, 0.953, 0.867), vec3(0.741, 0.831, 0.639), vec3(0.494, 0.659, 0.471), vec3(0.255, 0.439, 0.353),
           vec3(0.102, 0.224, 0.212),
           vec3(0.957, 0.969, 0.933), vec3(0.714, 0.863, 0.878), vec3(0.392, 0.69, 0.749), vec3(0.169, 0.447, 0.596),
           vec3(0.071, 0.204, 0.361),
           vec3(1.0, 0.957, 0.906), vec3(1.0, 0.796, 0.788), vec3(0.957, 0.569, 0.69), vec3(0.608, 0.486, 0.808),
           vec3(0.29, 0.286, 0.612),
           vec3(0.965, 0.922, 0.831), vec3(0.878, 0.765, 0.604), vec3(0.745, 0.573, 0.388), vec3(0.522, 0.353, 0.231),
           vec3(0.29, 0.188, 0.137),
           vec3(0.988, 0.984, 0.976), vec3(0.957, 0.949, 0.933), vec3(0.918, 0.906, 0.886), vec3(0.875, 0.859, 0.835),
           vec3(0.827, 0.808, 0.78));

float unitLength() { return length(u_size) / 1000.0; }

// How far in front a place lies: 0 at the back to the number of layers. The knife wobbles a little.
float heightAt(vec2 px, float wobble)
{
    vec4 soft = texture(u_soft, px / u_size);
    float tone = luminance(soft.rgb);
    tone *= 1.3 - 0.3 * tone; // as many sheets for the shadows as for the lights
    return clamp((1.0 - tone) * u_layers + wobble, 0.01, u_layers - 0.01);
}

// dye: the Oklab colour of the picture.
vec3 sheetColor(float sheet, vec3 dye)
{
    float last = max(u_layers - 1.0, 1.0);
    float place = clamp(sheet / last, 0.0, 1.0);
    int palette = int(u_palette + 0.5);
    if (palette == 0) {
        // The paper is dyed in one tone; the picture gives it its hue.
        return oklabToEncoded(vec3(mix(0.97, 0.24, place), dye.yz * 1.25));
    }
    float stop = place * 4.0;
    int low = clamp(int(stop), 0, 3) + (palette - 1) * 5;
    return mix(kPalettes[low], kPalettes[low + 1], clamp(stop - float(low - (palette - 1) * 5), 0.0, 1.0));
}

// Fibres and flakes, 0..2; every sheet has its own.
float fibres(vec2 px, uint sheet)
{
    float scale = max(u_renderScale, 0.05);
    vec2 p = px / scale;
    return 0.9 * valueNoise(p * vec2(0.11, 0.36), 50u + sheet) + 0.8 * valueNoise(p * vec2(0.31, 0.13), 70u + sheet)
        + 0.55 * valueNoise(p * 0.55, 90u + sheet);
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec3 soft = texture(u_soft, v_uv).rgb;
    vec2 px = v_uv * u_size;
    float unit = unitLength();
    float layers = max(u_layers, 2.0);
    vec2 toLight = u_lightDirection;

    // The finer one breaks the steps that a tone of eight bits makes where it hardly changes.
    float wobble = 0.1 * gradientNoise(px / (32.0 * unit), 41u) + 0.03 * gradientNoise(px / (4.0 * unit), 42u);
    float height = heightAt(px, wobble);
    vec2 slope = vec2(dFdx(height), dFdy(height));
    float steepness = max(length(slope), 1e-4);

    // The nearest cut, and on which side of it this pixel lies, pixels.
    float cut = clamp(floor(height + 0.5), 1.0, layers - 1.0);
    float fromCut = (height - cut) / steepness;
    float covered = clamp(fromCut + 0.5, 0.0, 1.0);
    float upper = height >= cut ? max(floor(height), cut) : cut; // the sheet in front at this cut
    upper = min(upper, layers - 1.0);
    if (abs(height - cut) > 0.5)
        covered = height > cut ? 1.0 : 0.0;
    vec3 dye = encodedToOklab(soft);
    vec3 paper = sheetColor(covered > 0.0 ? upper : upper - 1.0, dye);
    if (covered > 0.0 && covered < 1.0)
        paper = mix(sheetColor(upper - 1.0, dye), paper, covered);
    float sheet = upper - 1.0 + covered;

    // Sheets in front, towards the light, throw a shadow as long as they are high; it softens with the way.
    float depth = u_depthPx;
    float shadow = 0.0;
    float contact = 0.0;
    const int kSteps = 9;
    for (int i = 1; i <= kSteps; ++i) {
        float way = float(i) / float(kSteps) * 2.2;
        float there = heightAt(px + toLight * depth * way, wobble);
        float above = there - (floor(sheet + 0.5) + 1.0); // beyond the next cut, in layers
        float penumbra = 0.06 + 0.14 * way;
        float blocks = smoothstep(0.0, penumbra, above) * smoothstep(way - 0.9, way + 0.3, floor(above) + 1.0);
        shadow += blocks * (1.0 - 0.25 * way);
        contact = max(contact, blocks * (1.0 - 0.45 * way));
    }
    shadow = 0.3 * contact + 0.7 * shadow * 1.7 / float(kSteps);
    shadow = clamp(shadow, 0.0, 1.0) * smoothstep(0.0, 1.0, depth);

    // The paper's surface in the same light, and the light that catches the rim of a cut.
    float texture0 = u_paperTexture;
    uint which = uint(floor(sheet + 0.5));
    float relief = fibres(px, which) - fibres(px + toLight * max(1.2 * u_renderScale, 0.5), which);
    float flakes = valueNoise(px / (22.0 * unit), 60u + which) - 0.5;
    vec3 light = vec3(1.0 + texture0 * (0.42 * relief + 0.1 * flakes));
    float rim = (1.0 - smoothstep(0.4 * unit, 1.3 * unit, abs(fromCut - 0.6 * unit))) * step(0.0, fromCut)
        * clamp(-dot(slope / steepness, toLight), -0.6, 1.0) * smoothstep(0.002, 0.02, steepness * unit);

    vec3 rgb = paper * light;
    rgb = rim > 0.0 ? mix(rgb, 0.3 + 0.75 * rgb, rim * 0.5) : rgb * (1.0 + 0.2 * rim);
    rgb *= mix(vec3(1.0), vec3(0.36, 0.34, 0.44), shadow * 0.85);
    fragColor = vec4(clamp(rgb, 0.0, 1.0), src.a);
}
