#version 440
// Fades the picture away along a line or around a point, to a colour or to nothing.
// In and out: straight alpha, (0, 0) top left; mixed premultiplied. Cost: one texture read, one power.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform FadeOutUniforms {
    vec4 u_startEnd;                   // xy: start, zw: end, fractions of the picture, 0..1
    vec4 u_modeStrengthSoftnessCurve;  // x: 0 along a line, 1 around start; y: strength, 0..1; z: softness, 0..1;
                                       // w: exponent of the fade, at least 0.0001
    vec4 u_invert;                     // x: 1 to fade at the start, else 0
    vec4 u_fadeColor;                  // what the picture fades to, straight alpha, 0..1
};
#define u_start    u_startEnd.xy
#define u_end      u_startEnd.zw
#define u_mode     u_modeStrengthSoftnessCurve.x
#define u_strength u_modeStrengthSoftnessCurve.y
#define u_softness u_modeStrengthSoftnessCurve.z
#define u_curve    u_modeStrengthSoftnessCurve.w

const float kShortest = 0.0001;  // of the line and the radius; also what smoothstep needs as a span

/// The way from start to end, 0..1.
float progress()
{
    vec2 line = u_end - u_start;
    float t = u_mode < 0.5 ? dot(v_uv - u_start, line) / max(dot(line, line), kShortest)
                           : distance(v_uv, u_start) / max(length(line), kShortest);
    return clamp(t, 0.0, 1.0);
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    float edge0 = clamp(0.5 - u_softness * 0.5, 0.0, 1.0);
    float edge1 = max(clamp(0.5 + u_softness * 0.5, 0.0, 1.0), edge0 + kShortest);
    float fade = pow(smoothstep(edge0, edge1, progress()), u_curve);
    float amount = mix(fade, 1.0 - fade, u_invert.x) * u_strength;

    float fadeAlpha = src.a * u_fadeColor.a;
    float outAlpha = mix(src.a, fadeAlpha, amount);
    vec3 premultiplied = mix(src.rgb * src.a, u_fadeColor.rgb * fadeAlpha, amount);
    fragColor = vec4(outAlpha > 1e-6 ? premultiplied / outAlpha : src.rgb, outAlpha);
}
