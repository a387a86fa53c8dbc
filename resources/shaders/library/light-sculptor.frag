#version 440
// The picture as a relief: bright is high. A light hangs over it at a chosen place; the relief keeps the colours of the
// picture or is made of clay, plaster, porcelain or metal.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: 33 texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/sampling.glsl"
#include "../common/hash.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9;
};
#define u_size u_param0.xy         // width and height, pixels
#define u_lightCenter u_param1.xy  // pixels
#define u_lightRadius u_param2.x   // how far the light reaches, pixels
#define u_depth u_param3.x         // of the relief, 0..1
#define u_normalStepPx u_param4.x  // size of the finest forms, pixels
#define u_lightHeight u_param5.x   // 0, from the side, to 1, from above
#define u_softness u_param6.x      // 0, all details, to 1, large forms
#define u_ambient u_param7.x       // light from everywhere, 0..1
#define u_shine u_param8.x         // 0..1
#define u_material u_param9.x      // 0 photo, 1 clay, 2 plaster, 3 porcelain, 4 bronze, 5 silver

// xy: how much the height changes over `radius` (in uv), to the right and downward; z: the mean height at that
// distance. Places are read in opposite pairs; the first direction is a unit vector, and `next` turns it to that of the
// next pair.
vec3 slopeAround(vec2 radius, int pairs, vec2 direction, mat2 next)
{
    vec3 sum = vec3(0.0);
    for (int i = 0; i < pairs; ++i) {
        vec2 away = direction * radius;
        vec4 front = texture(u_input, v_uv + away);
        vec4 back = texture(u_input, v_uv - away);
        float frontHeight = luminance(front.rgb) * front.a;
        float backHeight = luminance(back.rgb) * back.a;
        sum += vec3(2.0 * direction * (frontHeight - backHeight), frontHeight + backHeight);
        direction = next * direction;
    }
    return sum / float(2 * pairs);
}

// Turns by a fourth, a fifth and a seventh of a half circle.
const mat2 kFourth = mat2(0.70710678, 0.70710678, -0.70710678, 0.70710678);
const mat2 kFifth = mat2(0.80901699, 0.58778525, -0.58778525, 0.80901699);
const mat2 kSeventh = mat2(0.90096887, 0.43388374, -0.43388374, 0.90096887);

struct Material
{
    vec3 color;   // linear
    vec3 shade;   // colour of its shadows: light that has passed through, or dirt
    float gloss;  // exponent of the highlight
    float metal;  // 1 mirrors its surroundings in its own colour
};

Material materialOf(int kind, vec3 photo)
{
    if (kind == 1)
        return Material(vec3(0.52, 0.235, 0.125), vec3(0.30, 0.09, 0.045), 9.0, 0.0);
    if (kind == 2)
        return Material(vec3(0.80, 0.77, 0.72), vec3(0.44, 0.42, 0.43), 6.0, 0.0);
    if (kind == 3)
        return Material(vec3(0.86, 0.87, 0.88), vec3(0.34, 0.42, 0.58), 70.0, 0.0);
    if (kind == 4)
        return Material(vec3(0.68, 0.36, 0.13), vec3(0.07, 0.055, 0.035), 26.0, 1.0);
    if (kind == 5)
        return Material(vec3(0.80, 0.82, 0.86), vec3(0.045, 0.05, 0.065), 38.0, 1.0);
    return Material(photo, photo * 0.5, 32.0, 0.0);
}

// What polished metal mirrors: a room with a bright ceiling, a dark floor and a window's strip of light.
float surroundings(vec3 direction)
{
    float up = -direction.y;
    float room = mix(0.06, 0.75, smoothstep(-0.55, 0.75, up));
    float window =
        smoothstep(0.18, 0.34, up) * (1.0 - smoothstep(0.5, 0.72, up)) * smoothstep(-0.9, -0.1, -direction.x);
    return room + 0.7 * window;
}

void main()
{
    vec2 px = v_uv * u_size;
    vec4 src = texture(u_input, v_uv);
    float detail = max(u_normalStepPx, 0.3);
    float softness = u_softness;

    vec2 step = detail / u_size;
    vec3 fine = slopeAround(step, 4, vec2(1.0, 0.0), kFourth);
    vec3 middle = slopeAround(2.6 * step, 5, vec2(0.92387953, 0.38268343), kFifth);
    vec3 coarse = slopeAround((6.0 + 3.0 * softness) * step, 7, vec2(0.98078528, 0.19509032), kSeventh);
    vec2 slope = mix(1.3, 0.1, softness) * fine.xy + mix(0.9, 0.45, softness) * middle.xy
        + mix(0.5, 1.25, softness) * coarse.xy;
    int kind = int(u_material + 0.5);
    slope *= (kind == 0 ? 9.0 : 11.0) * u_depth;
    slope /= 1.0 + 0.22 * length(slope); // cliffs lean, so that they still show light
    vec3 normal = normalize(vec3(-slope, 1.0));

    float height = luminance(src.rgb) * src.a;
    float hollow = mix(middle.z, coarse.z, 0.6) - mix(height, middle.z, softness);
    float open = clamp(1.0 - 2.2 * u_depth * max(hollow, -0.1), 0.3, 1.25);

    float reach = max(u_lightRadius, 1.0);
    vec3 toLight = vec3(u_lightCenter - px, reach * mix(0.12, 1.3, u_lightHeight));
    float away = length(toLight.xy) / reach;
    float fading = 1.0 / (1.0 + 1.8 * away * away);
    vec3 light = normalize(toLight);
    float facing = dot(normal, light);
    vec3 halfway = normalize(light + vec3(0.0, 0.0, 1.0));
    float mirrored = max(dot(normal, halfway), 0.0);

    vec3 photo = toLinear(src.rgb);
    Material material = materialOf(kind, photo);
    vec3 color = material.color;
    if (kind > 0)
        color = mix(material.shade, color, smoothstep(-0.25, 0.75, height)); // the picture lives on as a tone

    // Soft materials let light creep round: the wrapped part takes the colour of the shadow.
    float wrap = kind == 3 ? 0.3 : kind == 0 ? 0.05 : 0.15;
    float lit = max(facing, 0.0);
    float wrapped = max((facing + wrap) / (1.0 + wrap), 0.0);
    float sky = 0.75 - 0.25 * normal.y;
    vec3 around = (kind == 0 ? photo : mix(material.shade, color, 0.55)) * sky * open * u_ambient * 1.3;
    vec3 diffuse = (color * lit + material.shade * (wrapped - lit) * 1.2) * mix(1.0, open, 0.5);

    float power = material.gloss * mix(0.6, 1.6, u_shine);
    float highlight = pow(mirrored, power) * (power + 8.0) / 60.0;
    vec3 result;
    if (material.metal > 0.5) {
        vec3 mirror = reflect(vec3(0.0, 0.0, -1.0), normal);
        vec3 reflected = color * surroundings(mirror) * open;
        result = diffuse * 0.55 * fading + reflected * (0.25 + u_ambient * 1.1) * mix(0.45, 1.0, fading)
            + (color * 0.75 + 0.25) * highlight * u_shine * 4.0 * fading;
    } else {
        // A photo's dark places stay dark; glaze mirrors a little at grazing angles.
        float glaze = kind == 3 ? 1.0 : 0.0;
        float polish = kind == 0 ? 0.1 + 0.5 * height : 0.25 + 0.5 * glaze;
        float grazing = 1.0 - normal.z;
        vec3 mirror = reflect(vec3(0.0, 0.0, -1.0), normal);
        result = around + diffuse * (kind == 0 ? 2.5 : 1.45) * fading
            + u_shine * (polish * highlight * fading + 0.5 * glaze * grazing * surroundings(mirror));
    }
    result = result * (1.0 + result / 6.0) / (1.0 + 0.55 * result); // a shoulder, so that highlights keep their form
    vec3 rgb = toEncoded(result) + (hash23(ivec2(gl_FragCoord.xy), 5u) - 0.5) / 255.0;
    fragColor = vec4(clamp(rgb, 0.0, 1.0), src.a);
}
