#version 440
// A pastel dream: a wash of neighbouring hues runs across the picture, and light or dusk gathers round a soft oval in
// which the subject stays clear.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: five texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/film.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9;
};
#define u_size u_param0.xy         // width and height, pixels
#define u_tint u_param1.rgb        // red, green, blue, 0..1, encoded
#define u_tintAmount u_param2.x    // 0..1
#define u_colorSpread u_param3.x   // how far the hue drifts from corner to corner, 0..1
#define u_maskSize u_param4.x      // half the oval's size, as a share of the picture
#define u_maskFeather u_param5.x   // width of its edge, as a share of its size
#define u_maskExpo u_param6.x      // stops of light outside the oval, below 0 darker
#define u_lightness u_param7.x     // -1..1
#define u_sharpen u_param8.x       // clearness of the subject, 0..1
#define u_sharpenReach u_param9.x  // pixels

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 size = u_size;
    vec2 centred = 2.0 * v_uv - 1.0;

    float away = length(centred) / max(2.0 * u_maskSize, 0.01);
    float feather = clamp(u_maskFeather, 0.02, 1.0);
    float outside = smoothstep(1.0 - feather, 1.0 + feather, away);

    // Clearness: the subject against its four neighbours.
    vec2 reach = max(u_sharpenReach, 0.5) / max(size, 1.0);
    vec2 across = vec2(reach.x, 0.0);
    vec2 along = vec2(0.0, reach.y);
    vec3 around = 0.25 * (texture(u_input, v_uv + across).rgb + texture(u_input, v_uv - across).rgb
                          + texture(u_input, v_uv + along).rgb + texture(u_input, v_uv - along).rgb);
    float detail = clamp(luminance(src.rgb - around), -0.1, 0.1);
    vec3 light = toLinear(clamp(src.rgb + (1.0 - outside) * u_sharpen * 1.2 * detail, 0.0, 1.0));

    float stops = u_maskExpo * outside;
    light *= exp2(stops);
    light += 0.10 * max(stops, 0.0) * vec3(1.0, 0.98, 0.97); // haze takes the black away
    vec3 lab = linearToOklab(rolledOff(light, 0.66));

    // A wash whose hue drifts along the diagonal; dark tones take less of it, white keeps most of its light.
    vec3 tint = encodedToOklab(u_tint);
    float diagonal = 0.6 * (centred.x + centred.y) + 0.12 * sin(2.6 * centred.x - 1.7 * centred.y);
    float drift = u_colorSpread * 1.5 * clamp(diagonal, -1.0, 1.0);
    vec2 hue = rotation(drift) * tint.yz;
    float amount = u_tintAmount;
    float skin = skinShare(lab.yz);
    float room = smoothstep(0.02, 0.50, lab.x) * (1.0 - 0.35 * skin) * (0.65 + 0.35 * outside);
    lab.yz = mix(lab.yz, 0.55 * lab.yz + hue, amount * 0.85 * room);
    lab.x = mix(lab.x, 0.10 + 0.90 * lab.x, amount * 0.6);
    lab.x = u_lightness > 0.0 ? mix(lab.x, 1.0 - (1.0 - lab.x) * (1.0 - lab.x), 0.55 * u_lightness)
                             : mix(lab.x, lab.x * lab.x, -0.6 * u_lightness);
    fragColor = vec4(clamp(dithered(oklabToEncoded(lab), gl_FragCoord.xy), 0.0, 1.0), src.a);
}
