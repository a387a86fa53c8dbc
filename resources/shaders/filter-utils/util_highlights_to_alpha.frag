#version 440
// Ink on nothing: recolours by brightness and lets light pixels fade away.
// In and out: straight alpha, (0, 0) top left; alpha only shrinks. Cost: one texture read.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform HighlightsToAlphaUniforms {
    vec4 u_shadow;                     // rgb: colour of black, 0..1
    vec4 u_midtone;                    // rgb: colour towards which lighter pixels go, 0..1
    vec4 u_thresholdSoftnessStrength;  // x: brightness where fading begins, 0..1; y: span to its end, at least 0.0001;
                                       // z: share of the alpha that goes
};
const vec3 kLuma = vec3(0.299, 0.587, 0.114);  // Rec. 601

void main()
{
    vec4 src = texture(u_input, v_uv);
    float luma = dot(src.rgb, kLuma);
    float threshold = u_thresholdSoftnessStrength.x;
    float fade = smoothstep(threshold, threshold + u_thresholdSoftnessStrength.y, luma) * u_thresholdSoftnessStrength.z;
    fragColor = vec4(mix(u_shadow.rgb, u_midtone.rgb, luma), src.a * (1.0 - fade));
}
