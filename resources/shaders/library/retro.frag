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
    vec4 u_param0;  // size: width and height, pixels
    vec4 u_param1;  // tint: red, green, blue, 0..1, encoded
    vec4 u_param2;  // tintAmount: 0..1
    vec4 u_param3;  // colorSpread: how far the hue of the shadows is from that of the lights; 1 is the opposite
    vec4 u_param4;  // contrast: -1..1
    vec4 u_param5;  // shadowLift: 0..1
    vec4 u_param6;  // saturation: -1..1
    vec4 u_param7;  // grain: x: 0..1; y: size of a grain, pixels
    vec4 u_param8;  // sharpen: strength of the sharpening that follows; grain makes room for it
    vec4 u_param9;  // seed
};

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 tint = encodedToOklab(u_param1.rgb).yz;
    vec2 opposite = rotation(3.14159265 * u_param3.x) * tint;
    float amount = u_param2.x;

    vec3 lab = linearToOklab(rolledOff(toLinear(src.rgb) * exp2(0.10), 0.72));
    float skin = skinShare(lab.yz);
    lab.yz = vibrantChroma(lab.yz, 1.0 + u_param6.x * (1.0 - 0.3 * skin));
    lab.x = toneCurve(lab.x, u_param4.x);
    // The dyes of an old print hold less of every colour; what is left leans to the tint.
    float lights = lab.x * lab.x * (1.0 - 0.55 * lab.x);
    float shadows = (1.0 - lab.x) * (1.0 - lab.x);
    vec2 wash = 0.95 * tint * lights + 0.42 * opposite * shadows;
    lab.yz = lab.yz * (1.0 - 0.25 * amount) + amount * (1.0 - 0.3 * skin) * wash;

    // Black rises towards the hue of the shadows and white yellows a little.
    float lift = u_param5.x;
    lab.x = 0.34 * lift + (1.0 - 0.38 * lift) * lab.x;
    lab.yz += lift * (0.22 * opposite * shadows);
    vec3 rgb = oklabToEncoded(lab);

    vec3 grain = filmGrain(v_uv * u_param0.xy, u_param7.y, 0.25, seedBits(u_param9.x));
    rgb = withGrain(rgb, grain * u_param7.x * 0.55 / (1.0 + 2.5 * u_param8.x));
    fragColor = vec4(clamp(dithered(rgb, gl_FragCoord.xy), 0.0, 1.0), src.a);
}
