#version 440
// The picture lit again, in linear light: a base light and up to eight placed ones.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: one texture read; a light costs about 30 operations.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8, u_param9,
         u_param10, u_param11, u_param12, u_param13, u_param14, u_param15, u_param16, u_param17, u_param18,
         u_param19, u_param20, u_param21, u_param22, u_param23, u_param24;
};
#define u_frame u_param0           // width and height, pixels; number of lights, 0..8; base light, 0..2
#define u_lightGeometry0 u_param1  // centre and radius, pixels; angle, radians
#define u_lightGeometry1 u_param2
#define u_lightGeometry2 u_param3
#define u_lightGeometry3 u_param4
#define u_lightGeometry4 u_param5
#define u_lightGeometry5 u_param6
#define u_lightGeometry6 u_param7
#define u_lightGeometry7 u_param8
#define u_lightColor0 u_param9     // linear red, green and blue, 0..1; intensity
#define u_lightColor1 u_param10
#define u_lightColor2 u_param11
#define u_lightColor3 u_param12
#define u_lightColor4 u_param13
#define u_lightColor5 u_param14
#define u_lightColor6 u_param15
#define u_lightColor7 u_param16
#define u_lightShape0 u_param17    // 0 round, 1 oval, 2 rectangle, 3 spot; softness, 0..1
#define u_lightShape1 u_param18
#define u_lightShape2 u_param19
#define u_lightShape3 u_param20
#define u_lightShape4 u_param21
#define u_lightShape5 u_param22
#define u_lightShape6 u_param23
#define u_lightShape7 u_param24

const float kSpotAngle = 0.45; // half the opening of a spot, radians

float edgeFalloff(float distance, float softness, float edgeWidth)
{
    float inner = (1.0 - softness) * (1.0 - edgeWidth);
    float t = clamp((distance - inner) / max(1.0 - inner, edgeWidth), 0.0, 1.0);
    return 1.0 - t * t * (3.0 - 2.0 * t);
}

// How much of a light reaches a place, 0..1.
float coverage(vec2 pixel, vec4 geometry, vec2 shape)
{
    float radius = max(geometry.z, 1.0);
    float c = cos(geometry.w);
    float s = sin(geometry.w);
    vec2 offset = pixel - geometry.xy;
    vec2 local = vec2(c * offset.x + s * offset.y, c * offset.y - s * offset.x) / radius;
    float softness = shape.y;
    float edgeWidth = min(1.5 / radius, 0.5);
    float peak = mix(1.0, 0.6, softness);

    if (shape.x < 0.5)
        return peak * edgeFalloff(length(local), softness, edgeWidth);
    if (shape.x < 1.5)
        return peak * edgeFalloff(length(vec2(local.x, local.y / 0.5)), softness, edgeWidth);
    if (shape.x < 2.5) {
        vec2 q = local * local / vec2(1.0, 0.62 * 0.62);
        return peak * edgeFalloff(sqrt(length(q)), softness, edgeWidth);
    }
    float reach = length(local);
    float spread = reach < 0.0001 ? 0.0 : atan(abs(local.y), local.x);
    float angularEdge = min(1.5 / max(reach * radius, 1.0), 0.5);
    float innerAngle = kSpotAngle * (1.0 - 0.8 * softness);
    float cone = 1.0 - smoothstep(innerAngle, kSpotAngle + angularEdge, spread);
    return peak * cone * edgeFalloff(reach, max(softness, 0.35), edgeWidth);
}

void main()
{
    ivec2 last = ivec2(u_frame.xy) - 1;
    ivec2 texel = clamp(ivec2(v_uv * u_frame.xy), ivec2(0), last);
    vec4 src = texelFetch(u_input, texel, 0);
    if (src.a <= 1e-6) {
        fragColor = src;
        return;
    }

    vec4 geometry[8] = vec4[](u_lightGeometry0, u_lightGeometry1, u_lightGeometry2, u_lightGeometry3, u_lightGeometry4, u_lightGeometry5, u_lightGeometry6, u_lightGeometry7);
    vec4 color[8] = vec4[](u_lightColor0, u_lightColor1, u_lightColor2, u_lightColor3, u_lightColor4, u_lightColor5, u_lightColor6, u_lightColor7);
    vec4 shape[8] = vec4[](u_lightShape0, u_lightShape1, u_lightShape2, u_lightShape3, u_lightShape4, u_lightShape5, u_lightShape6, u_lightShape7);
    int count = clamp(int(u_frame.z + 0.5), 0, 8);
    vec2 pixel = vec2(texel) + 0.5;
    vec3 light = vec3(0.0);
    for (int i = 0; i < count; ++i)
        light += color[i].rgb * max(color[i].w, 0.0) * coverage(pixel, geometry[i], shape[i].xy);

    // A little light is added, not multiplied: it shows on black, too.
    vec3 albedo = toLinear(src.rgb);
    vec3 lit = albedo * (u_frame.w + light) + light * 0.035;
    // Highlights roll off above what they were.
    vec3 knee = max(albedo, 0.8);
    vec3 headroom = max(1.0 - knee, 0.0001);
    vec3 rolled = knee + headroom * (1.0 - exp(-(max(lit, knee) - knee) / headroom));
    fragColor = vec4(clamp(toEncoded(mix(lit, rolled, greaterThan(lit, knee))), 0.0, 1.0), src.a);
}
