#version 440
// Slide film in the wrong bath: each channel gets a curve of its own, so that shadows turn blue and lights yellow, and
// colours become loud.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read.
#extension GL_GOOGLE_include_directive : require
#include "../common/film.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2; };
#define u_satMul u_param0.x        // factor of the chroma
#define u_invGamma u_param1.xyz    // exponent of each channel
#define u_crossProcess u_param2.x  // strength of the channels' curves, 0..1

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec3 rgb = pow(max(src.rgb, 0.0), max(u_invGamma, 0.05));
    float cross = u_crossProcess;
    rgb.r = toneCurve(rgb.r, 0.80 * cross);
    rgb.g = toneCurve(rgb.g, 0.50 * cross);
    rgb.b = mix(rgb.b, 0.13 + 0.70 * rgb.b, 0.75 * cross);

    vec3 lab = encodedToOklab(rgb);
    lab.yz = vibrantChroma(lab.yz, mix(u_satMul, 1.0, 0.55 * skinShare(lab.yz)));
    fragColor = vec4(dithered(oklabToEncoded(lab), gl_FragCoord.xy), src.a);
}
