#version 440
// A Petzval portrait lens: the subject is sharp, and the blur around it turns about the middle, since the lens cuts its
// discs of light to ellipses that lie across the way to the middle.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: two texture reads where it is sharp, eleven
// more where it is blurred.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_soft; // the same picture out of focus, of any size
layout(binding = 2) uniform sampler2D u_mask; // alpha: 1 where the lens is sharp
layout(std140, binding = 3) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2, u_param3, u_param4; };
#define u_size u_param0.xy         // width and height, pixels
#define u_center u_param1.xy       // that the blur turns about, pixels
#define u_blurStrength u_param2.x  // 0..1
#define u_swirl u_param3.x         // 0..1
#define u_vignette u_param4.x      // fall-off of light in what is blurred, 0..1

const int kPlaces = 11;
const float kWidestArc = 0.28; // radians to each side, at the corners

void main()
{
    vec4 src = texture(u_input, v_uv);
    float blurred = (1.0 - texture(u_mask, v_uv).a) * u_blurStrength;
    if (blurred <= 0.0) {
        fragColor = src;
        return;
    }
    vec2 size = u_size;
    vec2 fromCenter = v_uv * size - u_center;
    float away = length(fromCenter) / (0.5 * length(size));

    // Means of light rather than of encoded colour, as in the discs that are drawn out here.
    float arc = kWidestArc * u_swirl * smoothstep(0.0, 1.0, away) * blurred;
    vec3 sum = vec3(0.0);
    float total = 0.0;
    float places = float(kPlaces);
    mat2 next = rotation(2.0 * arc / places);
    vec2 turned = rotation(arc / places - arc) * fromCenter;
    for (int i = 0; i < kPlaces; ++i) {
        float t = (2.0 * float(i) + 1.0) / places - 1.0;
        vec4 place = texture(u_soft, (u_center + turned) / size);
        float weight = place.a * (1.0 - t * t); // rounded, as discs are
        turned = next * turned;
        sum += weight * place.rgb * place.rgb;
        total += weight;
    }
    vec3 soft = total > 1e-3 ? sqrt(sum / max(total, 1e-3)) : src.rgb;

    float cosine = inversesqrt(1.0 + away * away * u_vignette * 0.8);
    soft *= mix(1.0, cosine * cosine, blurred);
    fragColor = vec4(mix(src.rgb, soft, smoothstep(0.0, 0.6, blurred)), src.a);
}
