#version 440
// A toned black and white print: redder in the shadows, yellower in the lights, on slightly creamy paper.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2, u_param3; };
#define u_tintHS u_param0.xy     // x hue, 0..1; y saturation, 0..1
#define u_brightness u_param1.x  // -1..1
#define u_contrast u_param2.x    // -1..1
#define u_intensity u_param3.x   // share of the toned picture, 0..1

const float kHueSpan = 0.035; // between the deepest shadow and the brightest light

void main()
{
    vec4 src = texture(u_input, v_uv);
    float tone = pow(luminance(src.rgb), exp2(-0.9 * u_brightness));
    tone = curved(tone, u_contrast);

    vec3 hue = pureHue(u_tintHS.x + kHueSpan * (tone - 0.5));
    // Colour without brightness, most of it in the darker midtones; none in black, a trace in white.
    vec3 chroma = (hue - luminance(hue)) * u_tintHS.y;
    float profile = 1.7 * tone * (1.0 - tone) * (1.35 - 0.7 * tone) + 0.16 * tone * tone;
    vec3 toned = fitted(0.02 + tone * 0.955 + chroma * profile);
    fragColor = vec4(mix(src.rgb, toned, u_intensity), src.a);
}
