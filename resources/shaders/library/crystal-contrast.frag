#version 440
// Clean air: crisp middle-sized contrast, deeper tones, fresh colours, whites without a yellow cast.
// In: a picture with the map of its tones (tone_base.glsl). Out: the picture; straight alpha, (0, 0) top left; alpha is
// kept. Cost: five texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/tone_base.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5;
};
#define u_amount u_param0.x    // clarity, 0..1
#define u_contrast u_param1.x  // 0..1
#define u_colorPop u_param2.x  // 0..1
#define u_coolTone u_param3.x  // 0..1
#define u_size u_param4.xy     // of the picture, pixels
#define u_cell u_param5.x      // of the map, pixels

void main()
{
    ivec2 size = ivec2(u_size + 0.5);
    vec2 position = v_uv * vec2(size);
    vec4 src = texelFetch(u_input, clamp(ivec2(position), ivec2(0), size - 1), 0);
    float tone = luminance(src.rgb);

    // Clarity: what rises above its surroundings rises more, least near black and white and in skin and other warm
    // colours, and never without bound. Flat places keep their noise as it is.
    vec2 broad = toneBase(u_input, size, max(u_cell, 1.0), position, tone);
    float detail = tone - broad.x;
    float warm = smoothstep(0.05, 0.35, src.r - src.b);
    float room = smoothstep(0.0, 0.18, tone) * (1.0 - 0.7 * smoothstep(0.75, 1.0, tone)) * (1.0 - 0.35 * warm);
    float clear = tone + u_amount * room * broad.y * 2.6 * detail / (1.0 + 5.0 * abs(detail));
    clear = curved(pow(max(clear, 0.0), 1.0 - 0.2 * u_contrast), 0.8 * u_contrast);

    // Faint colours gain more than strong ones, warm colours least.
    float chroma = max(src.r, max(src.g, src.b)) - min(src.r, min(src.g, src.b));
    float pop = 1.0 + u_colorPop * (1.0 - 0.45 * warm) * (1.1 - 0.9 * smoothstep(0.1, 0.7, chroma));
    vec3 rgb = withTone(src.rgb, tone, clear, pop);

    // Cool light, at the same brightness.
    float cool = u_coolTone * (1.0 - 0.55 * warm);
    vec3 cooled = rgb * mix(vec3(1.0), vec3(0.91, 1.0, 1.11), cool);
    rgb = fitted(cooled + clear - luminance(cooled));
    fragColor = vec4(rgb, src.a);
}
