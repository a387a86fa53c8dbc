#version 440
// The basic corrections, one after the other: saturation, hue, contrast, brightness, exposure, temperature, gamma.
// Brightness and exposure lift highlights less than the rest, so that they do not burn out.
// In and out: straight alpha, (0, 0) top left; alpha passes unchanged. Cost: one texture read, one sine and cosine.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform ColorAdjustUniforms {
    vec4 u_brightnessSaturationHueContrast;  // each -1..1, 0 changes nothing; hue 1 is half a turn
    vec4 u_exposureTemperatureGamma;         // x: factor of the exposure, 0.25..4; y: -1 (cold)..1 (warm);
                                             // z: exponent, 0.5..2
};
#define u_brightness  u_brightnessSaturationHueContrast.x
#define u_saturation  u_brightnessSaturationHueContrast.y
#define u_hue         u_brightnessSaturationHueContrast.z
#define u_contrast    u_brightnessSaturationHueContrast.w
#define u_exposureMul u_exposureTemperatureGamma.x
#define u_temperature u_exposureTemperatureGamma.y
#define u_gammaExp    u_exposureTemperatureGamma.z

const float kPi = 3.14159265358979;
const vec3 kLuma = vec3(0.213, 0.715, 0.072);  // Rec. 709, to three places

/// Turns colours around grey and stretches them: by cosine and sine of an angle, or by a factor and 0.
vec3 recolored(vec3 rgb, float c, float s)
{
    return vec3(dot(rgb, kLuma + c * vec3(0.787, -0.715, -0.072) + s * vec3(-0.213, -0.715, 0.928)),
                dot(rgb, kLuma + c * vec3(-0.212, 0.285, -0.072) + s * vec3(0.143, 0.140, -0.283)),
                dot(rgb, kLuma + c * vec3(-0.213, -0.715, 0.928) + s * vec3(-0.787, 0.715, 0.072)));
}

/// How much of a lift is taken back: 0 up to light greys, 1 near white.
float highlightProtection(vec3 rgb)
{
    return smoothstep(0.68, 0.96, dot(clamp(rgb, 0.0, 1.0), kLuma));
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec3 adjusted = recolored(src.rgb, 1.0 + u_saturation, 0.0);
    adjusted = recolored(adjusted, cos(u_hue * kPi), sin(u_hue * kPi));

    float csub = u_contrast * (u_contrast < 0.0 ? 50.0 : 150.0);
    adjusted += src.rgb * (csub / 100.0) - csub / 255.0;

    float b = u_brightness * 110.0 / 255.0;
    adjusted += min(b, 0.0) + max(b, 0.0) * mix(1.0, 0.25, highlightProtection(adjusted));

    float e = u_exposureMul - 1.0;
    adjusted *= 1.0 + min(e, 0.0) + max(e, 0.0) * mix(1.0, 0.18, highlightProtection(adjusted));

    adjusted *= vec3(1.0 + 0.18 * u_temperature, 1.0, 1.0 - 0.18 * u_temperature);
    adjusted = pow(clamp(adjusted, 0.0, 1.0), vec3(u_gammaExp));
    fragColor = vec4(clamp(adjusted, 0.0, 1.0), src.a);
}
