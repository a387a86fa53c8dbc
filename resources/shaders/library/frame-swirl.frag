#version 440
// A picture, upright or tilted and with soft borders, before a background that is swirled around the middle.
// In and out: straight alpha, (0, 0) top left. Cost: six texture reads where the background shows, one for the picture, or
// four where it is tilted or scaled.
#extension GL_GOOGLE_include_directive : require
#include "../common/sampling.glsl"
#include "../common/shapes.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_bg;
layout(binding = 1) uniform sampler2D u_input;
layout(std140, binding = 2) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10, u_param11;
};
#define u_swirlAngle u_param0.x   // turn at the rim of the picture within, radians
#define u_swirlRadius u_param1.x  // where the turn has died away, halves of the diagonal
#define u_bgGammaInv u_param2.x   // exponent of the background's colours, under 1 lightens
#define u_negative u_param3.x     // share of the inverted background, 0..1
#define u_thumbScale u_param4.x   // size of the picture within, 1 is full
#define u_thumbAlpha u_param5.x   // its opacity, 0..1
#define u_thumbTilt u_param6.x    // its turn, radians, clockwise
#define u_maskFeather u_param7.x  // width of its soft border, 0 to 1 of its shorter half
#define u_ovalShape u_param8.x    // 0 rectangle to 1 ellipse
#define u_aspectRatio u_param9.x  // width to height
#define u_size u_param10.xy       // width and height, pixels
#define u_fadeShare u_param11.x   // share of that border, from its inner end, over which the picture gives way

const float kSmear = 0.07; // of the turn
const int kSmearReads = 6;

// Repeats the picture mirrored beyond its borders.
vec2 mirrored(vec2 uv) { return 1.0 - abs(1.0 - 2.0 * fract(0.5 * uv)); }

void main()
{
    float aspect = u_aspectRatio;
    vec2 unit = vec2(aspect, 1.0);
    vec2 p = (v_uv - 0.5) * unit; // heights
    float pixel = 1.0 / u_size.y;

    // The picture within.
    float scale = max(u_thumbScale, 0.01);
    vec2 q = rotation(-u_thumbTilt) * p / scale; // its own heights
    vec2 halfSize = 0.5 * unit;
    float shorter = min(halfSize.x, halfSize.y);
    float feather = u_maskFeather * shorter;
    vec2 beyond = abs(q) - halfSize;
    float rounding = max(feather, 0.25 * shorter); // also keeps creases out of a wide border
    float near = max(rounding - abs(beyond.x - beyond.y), 0.0);
    float box = max(beyond.x, beyond.y) + 0.25 * near * near / rounding;
    float oval = (length(q / halfSize) - 1.0) * shorter;
    float outside = mix(box, oval, u_ovalShape);
    float edge = 0.7 * pixel / scale;
    float mask = smoothstep(edge, -edge - feather, outside);

    vec4 thumb = scale == 1.0 && u_thumbTilt == 0.0 ? texture(u_input, v_uv) : readSmooth(u_input, q / unit + 0.5);
    float share = max(u_fadeShare, 0.001);
    float front = clamp((mask - 1.0 + share) / share, 0.0, 1.0) * u_thumbAlpha * thumb.a;

    // The background turns about the middle, the less the farther out. Where the picture gives way early, the turn sets
    // in gently along the soft border, so that the same picture passes into it without a ghost. It is smeared along the
    // arcs like wet paint.
    float radius = max(u_swirlRadius, 0.05) * 0.5 * length(unit);
    float far = clamp(1.0 - length(p) / radius, 0.0, 1.0);
    float turn = u_swirlAngle * far * far * (3.0 - 2.0 * far);
    turn *= mix(1.0, (1.0 - mask) * (1.0 - mask), smoothstep(0.0, 0.5, 1.0 - share));
    vec4 bg = vec4(0.0);
    if (front < 1.0) {
        mat2 between = rotation(-kSmear * turn / float(kSmearReads));
        vec2 from = rotation(-turn * (1.0 - 0.5 * kSmear)) * p;
        for (int i = 0; i < kSmearReads; ++i) {
            bg += premultiplied(texture(u_bg, mirrored(from / unit + 0.5)));
            from = between * from;
        }
        bg = straight(bg / float(kSmearReads));
        if (u_bgGammaInv != 1.0)
            bg.rgb = pow(bg.rgb, vec3(max(u_bgGammaInv, 0.01)));
        bg.rgb = mix(bg.rgb, 1.0 - bg.rgb, u_negative);
    }
    float alpha = front + bg.a * (1.0 - front);
    vec3 rgb = alpha > 0.0 ? (thumb.rgb * front + bg.rgb * bg.a * (1.0 - front)) / alpha : thumb.rgb;
    fragColor = vec4(rgb, alpha);
}
