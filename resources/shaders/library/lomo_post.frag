#version 440
// The toy camera's lens: crisp in the middle, soft towards the corners; then a last push of colour.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: six texture reads.
#extension GL_GOOGLE_include_directive : require
#include "../common/film.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_bg;
layout(std140, binding = 2) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2, u_param3, u_param4; };
#define u_texelSize u_param0.xy    // one pixel of the picture, in uv
#define u_satMul u_param1.x        // factor of the chroma
#define u_sharpen u_param2.x       // 0..1
#define u_cornerBlur u_param3.x    // 0..1
#define u_sharpenReach u_param4.x  // pixels

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec4 soft = texture(u_bg, v_uv);
    vec2 size = 1.0 / max(u_texelSize, 1e-6);
    float field = fieldSquared(v_uv, size);
    float whole = smoothstep(0.9, 0.999, soft.a);

    // Two widths of sharpening: fine edges, and the local contrast of the blurred copy. Both end where blur begins.
    vec2 reach = u_texelSize * max(u_sharpenReach, 0.5);
    vec2 across = vec2(reach.x, 0.0);
    vec2 along = vec2(0.0, reach.y);
    vec3 around = 0.25 * (texture(u_input, v_uv + across).rgb + texture(u_input, v_uv - across).rgb
                          + texture(u_input, v_uv + along).rgb + texture(u_input, v_uv - along).rgb);
    float blurred = smoothstep(0.22, 0.95, field) * u_cornerBlur * whole;
    float edge = clamp(luminance(src.rgb - around), -0.12, 0.12);
    float local = clamp(luminance(src.rgb - soft.rgb), -0.35, 0.35) * whole;
    vec3 rgb = src.rgb + u_sharpen * (1.0 - blurred) * (1.3 * edge + 0.22 * local);
    rgb = mix(rgb, soft.rgb, blurred);

    rgb = clamp(rgb, 0.0, 1.0);
    float luma = luminance(rgb);
    rgb = mix(vec3(luma), rgb, mix(u_satMul, 1.0, smoothstep(0.55, 0.95, luma) * 0.6));
    fragColor = vec4(clamp(dithered(rgb, gl_FragCoord.xy), 0.0, 1.0), src.a);
}
