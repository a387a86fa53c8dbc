#version 440
// Grey with levels, and on wish a soft threshold that leaves black and white.
// In and out: straight alpha, (0, 0) top left; alpha passes unchanged. Cost: one texture read.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform GrayscaleUniforms {
    vec4 u_amountBlackWhiteThresholdAmount;  // x: share of the grey picture; y: brightness that becomes black;
                                             // z: brightness that becomes white; w: share of the threshold; all 0..1
    vec4 u_thresholdPointSoftness;           // x: grey that stays grey, 0..1; y: half the span around it, 0.0001..1
};
const vec3 kLuma = vec3(0.299, 0.587, 0.114);  // Rec. 601

void main()
{
    vec4 src = texture(u_input, v_uv);
    float black = u_amountBlackWhiteThresholdAmount.y;
    float range = max(0.001, u_amountBlackWhiteThresholdAmount.z - black);
    float leveled = clamp((dot(src.rgb, kLuma) - black) / range, 0.0, 1.0);
    float point = u_thresholdPointSoftness.x;
    float soft = max(0.0001, u_thresholdPointSoftness.y);
    float ink = smoothstep(point - soft, point + soft, leveled);
    float mono = mix(leveled, ink, u_amountBlackWhiteThresholdAmount.w);
    fragColor = vec4(mix(src.rgb, vec3(mono), u_amountBlackWhiteThresholdAmount.x), src.a);
}
