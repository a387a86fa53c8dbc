#version 440
// Late afternoon: amber light, open shadows, creamy lights, and greens that turn to gold.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read, three powers.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2, u_param3; };
#define u_strength u_param0.x  // share of the whole look, 0..1
#define u_warmth u_param1.x    // 0..1
#define u_pastel u_param2.x    // how much softer tones and colours are, 0..1
#define u_greens u_param3.x    // how golden greens turn, 0..1

const vec2 kAmber = vec2(0.019, 0.062); // direction of the light, Oklab a and b
const float kGreen = 2.35;              // hue angles in Oklab, radians
const float kGreenReach = 0.85;

void main()
{
    vec4 src = texture(u_input, v_uv);
    float warmth = u_warmth;
    float pastel = u_pastel;
    // Squares and roots stand for the transfer function: near enough for a look, and a third of the cost.
    vec3 lab = linearToOklab(src.rgb * src.rgb);

    // Greens: towards gold, and quieter. The angle wraps far from green, so that no seam shows.
    float chroma = length(lab.yz);
    float angle = atan(lab.z, lab.y);
    angle = angle < -0.8 ? angle + 6.28318531 : angle;
    float away = (angle - kGreen) / kGreenReach;
    float green = max(1.0 - away * away, 0.0);
    green *= green * smoothstep(0.015, 0.06, chroma) * u_greens;
    angle -= 0.55 * green;
    lab.yz = chroma * (1.0 - 0.3 * green) * vec2(cos(angle), sin(angle));

    // Softer: shadows open, lights roll off, strong colours come down more than faint ones.
    lab.x = mix(lab.x, 0.17 + lab.x * (0.985 - 0.17), pastel * 0.9);
    lab.x += pastel * 0.07 * sin(3.14159265 * clamp(lab.x, 0.0, 1.0));
    lab.yz *= 1.0 - pastel * (0.1 + 0.4 * smoothstep(0.05, 0.28, chroma));

    // The light: strongest in the midtones and lights, a trace in the shadows; blues give way to it.
    float lit = smoothstep(0.05, 0.75, lab.x) * (1.0 - 0.35 * smoothstep(0.88, 1.0, lab.x));
    lab.z *= lab.z < 0.0 ? 1.0 - 0.35 * warmth : 1.0;
    lab.yz += kAmber * warmth * (0.12 + 0.88 * lit) * (1.0 - 0.6 * smoothstep(0.08, 0.24, length(lab.yz)));
    lab.x = min(lab.x, 1.0 - 0.03 * warmth);

    vec3 graded = fitted(sqrt(max(oklabToLinear(lab), 0.0)));
    fragColor = vec4(mix(src.rgb, graded, u_strength), src.a);
}
