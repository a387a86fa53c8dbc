#version 440
// The rim of the picture as a slope, lit from the top left: the edges there brighten, those at the bottom right darken.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0;  // size: width and height, pixels
    vec4 u_param1;  // bevel: width of the slope, pixels
    vec4 u_param2;  // strength: 0..1
    vec4 u_param3;  // smoothness: 0, a straight slope, to 1, a rounded one
    vec4 u_param4;  // sign: 1 raised, -1 sunken
};

const float kLight = 0.35; // how much the steepest place gains or loses

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 size = u_param0.xy;
    float bevel = max(u_param1.x, 0.001);

    // Distances to the nearest lit and the nearest shaded edge, pixels.
    vec2 px = v_uv * size;
    float lit = min(px.x, px.y);
    float shaded = min(size.x - px.x, size.y - px.y);
    float lin = clamp(1.0 - min(lit, shaded) / bevel, 0.0, 1.0);
    float falloff = mix(lin, lin * lin * (3.0 - 2.0 * lin), u_param3.x);

    // The two meet along the diagonals of two corners; a pixel's width softens the ridge there.
    float side = clamp((shaded - lit) * 0.5, -1.0, 1.0);
    float light = side * falloff * u_param2.x * u_param4.x * kLight;
    vec3 rgb = light > 0.0 ? mix(src.rgb, vec3(1.0), light) : src.rgb * (1.0 + light);
    fragColor = vec4(rgb, src.a);
}
