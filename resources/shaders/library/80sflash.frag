#version 440
// A party snapshot with the flash on the camera: what is near the middle of the beam is bright and flat, the room
// behind it sinks into darkness. Printed on warm paper, through a soft lens, on grainy film.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads, two noises.
#extension GL_GOOGLE_include_directive : require
#include "../common/film.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_soft;
layout(std140, binding = 2) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10;
};
#define u_size u_param0.xy         // width and height, pixels
#define u_flashCenter u_param1.xy  // middle of the beam, 0..1
#define u_flashRadius u_param2.x   // where the beam has lost half its light, pixels
#define u_flash u_param3.x         // 0..1
#define u_saturation u_param4.x    // -1..1
#define u_softFocus u_param5.x     // share of light that the lens scatters, 0..1
#define u_glow u_param6.x          // bloom of bright places, 0..1
#define u_warmth u_param7.x        // -1 cold .. 1 warm
#define u_vignette u_param8.x      // 0..1
#define u_grain u_param9.x         // 0..1
#define u_grainSize u_param10.x    // of a grain, pixels

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 pixel = v_uv * u_size;
    float flash = u_flash;

    vec3 light = toLinear(src.rgb);
    vec3 soft = softenedLight(texture(u_soft, v_uv), light);
    light = mix(light, soft, 0.55 * u_softFocus);
    light += soft * smoothstep(0.12, 0.75, linearLuminance(soft)) * 0.7 * u_glow;

    vec2 away = (pixel - u_flashCenter * u_size) / max(u_flashRadius, 1e-2);
    float beam = 1.0 / (1.0 + 0.75 * dot(away, away));
    beam *= beam;
    light *= mix(1.0, 0.14 + 1.95 * beam, flash);
    light += 0.022 * flash * beam * vec3(1.0, 0.97, 0.96); // flat light reaches into near shadows
    light *= lensFalloff(v_uv, u_size, 0.9 * u_vignette);

    vec3 lab = linearToOklab(rolledOff(light, 0.62));
    float skin = skinShare(lab.yz);
    lab.yz = vibrantChroma(lab.yz, 1.0 + u_saturation * (1.0 - 0.45 * skin));
    lab.x = toneCurve(lab.x, 0.22 * flash);
    float shadows = lab.x * (1.0 - lab.x) * (1.0 - lab.x) * 6.75;
    float lights = lab.x * lab.x * (1.0 - lab.x * lab.x) * 4.0;
    // The paper: lights turn cream and skin rosy, the dark room stays bluish green.
    lab.yz += u_warmth * (lights * vec2(0.009, 0.030) + skin * vec2(0.010, 0.006));
    lab.yz += flash * shadows * vec2(-0.010, -0.016);
    lab.x = mix(lab.x, 0.06 + 0.94 * lab.x, flash);

    vec3 rgb = oklabToEncoded(lab);
    vec3 grain = filmGrain(pixel, u_grainSize, 0.3, 31u);
    rgb = withGrain(rgb, grain * u_grain * 0.4 * (0.3 + 0.7 * smoothstep(0.05, 0.4, lab.x)));
    fragColor = vec4(clamp(dithered(rgb, gl_FragCoord.xy), 0.0, 1.0), src.a);
}
