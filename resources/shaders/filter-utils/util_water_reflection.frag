#version 440
// The picture and, beyond one of its sides, its reflection in rippled water or in glass.
// In and out: straight alpha, (0, 0) top left; the picture passes unchanged, outside both is nothing. A position along
// the axis runs away from the picture; across is at right angles to it. Cost: four texture reads, one power.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform WaterReflectionUniforms {
    vec4 u_inputOutputSize;                   // xy: picture size, zw: result size, pixels
    vec4 u_originalOffsetReflectionSize;      // xy: the picture's place, z: length of the reflection, pixels
    vec4 u_sourceStartEnd;                    // xy, zw: the part that is reflected, fractions of the picture;
                                              // its end lies at the waterline
    vec4 u_directionGlassMix;                 // xy: away from the picture, one of them 1 or -1; z: 0 water, 1 glass
    vec4 u_opacityFadeWaveStrengthFrequency;  // x: 0..1; y: exponent of the fade, at least 0.25; z: reach of waves,
                                              // pixels; w: waves over the reflection
    vec4 u_rippleSheen;                       // x: unevenness of waves, as a factor; y: whiteness of glass, 0..1
};
#define u_inputSize      u_inputOutputSize.xy
#define u_outputSize     u_inputOutputSize.zw
#define u_originalOffset u_originalOffsetReflectionSize.xy
#define u_reflectionSize u_originalOffsetReflectionSize.z
#define u_sourceStart    u_sourceStartEnd.xy
#define u_sourceEnd      u_sourceStartEnd.zw
#define u_direction      u_directionGlassMix.xy
#define u_glassMix       u_directionGlassMix.z
#define u_opacity        u_opacityFadeWaveStrengthFrequency.x
#define u_fadeExponent   u_opacityFadeWaveStrengthFrequency.y
#define u_waveStrength   u_opacityFadeWaveStrengthFrequency.z
#define u_frequency      u_opacityFadeWaveStrengthFrequency.w
#define u_ripple         u_rippleSheen.x
#define u_sheen          u_rippleSheen.y

const vec3 kWaterTint = vec3(0.82, 0.92, 1.05);

float hash(float x)
{
    return fract(sin(x * 127.1) * 43758.5469);
}

/// 1 within the picture, 0 outside.
float insideInput(vec2 px)
{
    vec2 inside = step(vec2(0.0), px) * step(px, u_inputSize);
    return inside.x * inside.y;
}

vec4 inputAt(vec2 px)
{
    return texture(u_input, px / u_inputSize) * insideInput(px);
}

/// How far waves displace, in units of their amplitude; a slow and a quick wave, and a step for each of 48 bands.
float waveAt(float across, float t)
{
    float phase = t * u_frequency * 6.28318530717959;
    return sin(across * 0.045 * u_frequency + phase) + 0.55 * sin(across * 0.017 * u_frequency - phase * 1.73)
        + (hash(floor(t * 48.0)) - 0.5) * u_ripple;
}

/// The reflection at t, which runs from 0 at the waterline to 1 at the far end.
vec4 reflection(vec2 inputPx, vec2 axis, float t)
{
    vec2 waveDirection = axis.yx;
    float amplitude = u_waveStrength * (0.35 + 0.65 * (1.0 - t)) * (1.0 - u_glassMix);
    vec2 source = inputPx * waveDirection + mix(u_sourceEnd, u_sourceStart, t) * u_inputSize * axis
        + waveDirection * (amplitude * waveAt(dot(inputPx, waveDirection), t));
    vec4 a = inputAt(source);
    vec4 b = inputAt(source + waveDirection * (amplitude * 0.35 + 1.0));
    vec4 c = inputAt(source - waveDirection * (amplitude * 0.25 + 1.0));
    vec4 color = mix(0.55 * a + 0.25 * b + 0.2 * c, a, u_glassMix);

    vec3 water = mix(color.rgb, color.rgb * kWaterTint, 0.45);
    vec3 glass = mix(color.rgb, vec3(1.0), u_sheen * (1.0 - t) * 0.35);
    float fade = pow(max(1.0 - t, 0.0), u_fadeExponent) * mix(1.0, 1.0 - smoothstep(0.85, 1.0, t), u_glassMix);
    return vec4(mix(water, glass, u_glassMix), color.a * u_opacity * fade);
}

void main()
{
    vec2 inputPx = floor(v_uv * u_outputSize) + 0.5 - u_originalOffset;  // exact, so that bands end in whole rows
    vec2 axis = abs(u_direction);
    float along = dot(inputPx, axis);
    float dist = u_direction.x + u_direction.y > 0.0 ? along - dot(u_inputSize, axis) : -along;
    float reflectionMask = step(0.0, dist) * step(dist, u_reflectionSize);

    vec4 reflected = reflection(inputPx, axis, clamp(dist / max(u_reflectionSize, 1.0), 0.0, 1.0));
    reflected.a *= reflectionMask;
    fragColor = mix(reflected, inputAt(inputPx), insideInput(inputPx));
}
