#version 440
// Graphite hatching whose strokes fill the shadows, a second layer crossing the first, over a light wash.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: four texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_edges; // white edges on black
layout(binding = 2) uniform sampler2D u_tile;  // how light a tone still gets graphite, as grey; tiles
layout(std140, binding = 3) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6;
};
#define u_size u_param0.xy         // width and height, pixels
#define u_tileSize u_param1.x      // of one tile, pixels
#define u_color u_param2.x         // share of the picture's colour in the wash, 0..1
#define u_tone u_param3.x          // strength of the wash, 0..1
#define u_texture u_param4.x       // strength of the hatching, 0..1
#define u_edgeStrength u_param5.x  // strength of the lines, 0 none
#define u_softness u_param6.x      // of the strokes' borders, above 0

const vec3 kGraphite = vec3(0.035, 0.032, 0.03);

float tile(vec2 place) { return luminance(texture(u_tile, fract(place)).rgb); }

void main()
{
    vec4 src = texture(u_input, v_uv);
    float gray = pow(luminance(src.rgb), 0.45455);
    vec3 base = mix(vec3(gray), src.rgb, u_color);
    float shade = clamp(1.0 - gray, 0.0, 1.0);

    vec2 pixel = vec2(v_uv.x, 1.0 - v_uv.y) * u_size;
    vec2 place = pixel / max(u_tileSize, 1.0);
    float t1 = tile(place);
    float t2 = pow(max(tile(vec2(-place.x, place.y)), 0.001), 0.2);

    float s = max(u_softness, 0.001);
    float hatchA = 1.0 - smoothstep(shade - s, shade + s, t1);
    float hatchB = 1.0 - smoothstep(0.82 * shade - s, 0.82 * shade + s, t2);
    float textureInk = max(hatchA, hatchB) * u_texture;
    float edgeInk = texture(u_edges, v_uv).r * u_edgeStrength;
    float ink = clamp(textureInk + edgeInk, 0.0, 1.0);

    vec3 wash = mix(vec3(1.0), base, shade * u_tone);
    fragColor = vec4(mix(wash, kGraphite, ink), src.a);
}
