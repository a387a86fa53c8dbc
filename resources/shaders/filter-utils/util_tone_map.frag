#version 440
// Recolours by brightness: dark pixels take one colour, light pixels another, those between a mix of both.
// In and out: straight alpha, (0, 0) top left; alpha passes unchanged. Cost: one texture read.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform ToneMapUniforms {
    vec4 u_shadow;     // rgb: colour of black, 0..1
    vec4 u_highlight;  // rgb: colour of white, 0..1
    vec4 u_amount;     // x: share of the recoloured picture, 0..1
};
const vec3 kLuma = vec3(0.299, 0.587, 0.114);  // Rec. 601

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec3 toned = mix(u_shadow.rgb, u_highlight.rgb, dot(src.rgb, kLuma));
    fragColor = vec4(mix(src.rgb, toned, clamp(u_amount.x, 0.0, 1.0)), src.a);
}
