#version 440
// A print from an old album: flat and warm, with lifted shadows whose hue drifted away from that of the lights.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read, two noises.
#extension GL_GOOGLE_include_directive : require
#include "../common/film.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10;
};
#define u_size u_param0.xy        // width and height, pixels
#define u_tint u_param1.rgb       // red, green, blue, 0..1, encoded
#define u_tintAmount u_param2.x   // 0..1
#define u_colorSpread u_param3.x  // how far the hue of the shadows is from that of the lights; 1 is the opposite
#define u_contrast u_param4.x     // -1..1
#define u_shadowLift u_param5.x   // 0..1
#define u_saturation u_param6.x   // -1..1
#define u_grain u_param7.x        // 0..1
#define u_sharpen u_param8.x      // strength of the sharpening that follows; grain makes room for it
#define u_seed u_param9.x
#define u_grainSize u_param10.x   // of a grain, pixels

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 tint = encodedToOklab(u_tint).yz;
    vec2 opposite = rotation(3.14159265 * u_colorSpread) * tint;
    float amount = u_tintAmount;

    vec3 lab = linearToOklab(rolledOff(toLinear(src.rgb) * exp2(0.10), 0.72));
    float skin = skinShare(lab.yz);
    lab.yz = vibrantChroma(lab.yz, 1.0 + u_saturation * (1.0 - 0.3 * skin));
    lab.x = toneCurve(lab.x, u_contrast);
    // The dyes of an old print hold less of every colour; what is left leans to the tint.
    float lights = lab.x * lab.x * (1.0 - 0.55 * lab.x);
    float shadows = (1.0 - lab.x) * (1.0 - lab.x);
    vec2 wash = 0.95 * tint * lights + 0.42 * opposite * shadows;
    lab.yz = lab.yz * (1.0 - 0.25 * amount) + amount * (1.0 - 0.3 * skin) * wash;

    // Black rises towards the hue of the shadows and white yellows a little.
    float lift = u_shadowLift;
    lab.x = 0.34 * lift + (1.0 - 0.38 * lift) * lab.x;
    lab.yz += lift * (0.22 * opposite * shadows);
    vec3 rgb = oklabToEncoded(lab);

    vec3 grain = filmGrain(v_uv * u_size, u_grainSize, 0.25, seedBits(u_seed));
    rgb = withGrain(rgb, grain * u_grain * 0.55 / (1.0 + 2.5 * u_sharpen));
    fragColor = vec4(clamp(dithered(rgb, gl_FragCoord.xy), 0.0, 1.0), src.a);
}
