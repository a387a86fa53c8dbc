#ifndef ZM_SPECTRUM_GLSL
#define ZM_SPECTRUM_GLSL
// Colours of split light, linear.

// One bump a primary, red at 0 to violet at 1, and red's small second bump there; black beyond both ends. The mean over
// 0..1 is grey.
vec3 spectrum(float position)
{
    vec3 d = (position - vec3(0.16, 0.5, 0.83)) / vec3(0.23, 0.2, 0.2);
    vec3 light = exp(-d * d);
    float violet = (position - 0.96) / 0.09;
    light.r += 0.22 * exp(-violet * violet);
    float ends = smoothstep(-0.25, 0.1, position) * (1.0 - smoothstep(0.9, 1.25, position));
    return light * ends * vec3(1.0, 0.86, 1.0);
}

// Light of a film in interference: pale colours that return with every whole number of `order`.
vec3 interference(float order)
{
    return 0.5 + 0.5 * cos(6.28318531 * (order + vec3(0.0, 0.33, 0.67)));
}

#endif
