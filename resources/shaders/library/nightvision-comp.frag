#version 440
// The screen of night vision goggles: amplified light with its shot noise on a phosphor that blooms and saturates,
// scan lines, and the round edge of the tube.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: four texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/film.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;       // brightness
layout(binding = 1) uniform sampler2D u_noisy;       // noise round middle grey
layout(binding = 2) uniform sampler2D u_green_blur;  // blurred brightness
layout(binding = 3) uniform sampler2D u_mask_tint;   // alpha: 1 within the view of the tubes
layout(std140, binding = 4) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8;
};
#define u_size u_param0.xy          // width and height, pixels
#define u_tint_a u_param1.rgb       // the dark screen, encoded
#define u_tint_b u_param2.rgb       // the lit phosphor, encoded
#define u_scanlines u_param3.x      // height of a line, pixels
#define u_vignette u_param4.x       // darkness beyond the tubes, 0..1
#define u_gain u_param5.x           // amplification of light, at least 1
#define u_tint_strength u_param6.x  // 0, a white screen, to 1
#define u_line_strength u_param7.x  // 0..1
#define u_glow u_param8.x           // bloom, 0..1

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec4 soft = texture(u_green_blur, v_uv);
    float gain = max(u_gain, 0.1);

    // Light, amplified; the tube's automatic gain holds back what is bright.
    float light = toLinear(src.rgb).g;
    float lit = light * gain / (1.0 + light * gain);
    float bloom = toLinearFast(soft.rgb).g * smoothstep(0.9, 0.999, soft.a) * gain;
    lit += u_glow * 0.55 * bloom * bloom / (0.25 + bloom);
    // Photons arrive one by one: noise grows with the root of the light, and there is some without any.
    float noise = texture(u_noisy, v_uv).g - 0.5;
    lit = max(lit + noise * (0.035 + 0.32 * sqrt(max(lit, 0.0))), 0.0);

    if (u_line_strength > 0.0) {
        float period = max(u_scanlines, 0.1);
        float visible = smoothstep(1.0, 2.6, period); // finer lines than pixels are even grey
        float wave = cos(6.28318531 * v_uv.y * u_size.y / period);
        lit *= 1.0 - u_line_strength * (0.28 + 0.28 * wave * visible);
    }

    float screen = toEncoded(vec3(rolledOff(vec3(lit), 0.7).x)).x;
    vec3 dark = toLinear(u_tint_a);
    vec3 phosphor = toLinear(u_tint_b);
    vec3 tinted = dark + phosphor * lit;
    // Driven hard, the phosphor turns pale.
    tinted += vec3(0.55, 0.60, 0.50) * smoothstep(0.55, 1.6, lit);
    vec3 rgb = mix(vec3(screen), toEncoded(rolledOff(tinted, 0.75)), u_tint_strength);

    float view = clamp(texture(u_mask_tint, v_uv).a + (hash21(ivec2(gl_FragCoord.xy), 7u) - 0.5) / 255.0, 0.0, 1.0);
    vec3 shade = toLinear(clamp(rgb, 0.0, 1.0)) * lensFalloff(v_uv, u_size, 0.5 * u_vignette);
    shade *= 1.0 - u_vignette * (1.0 - view * view * (3.0 - 2.0 * view));
    fragColor = vec4(clamp(dithered(toEncoded(shade), gl_FragCoord.xy), 0.0, 1.0), src.a);
}
