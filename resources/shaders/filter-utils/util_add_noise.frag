#version 440
// Adds noise of a normal distribution, its own to each pixel and channel.
// In and out: straight alpha, (0, 0) top left; alpha passes unchanged. Cost: one texture read, six sines.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform AddNoiseUniforms {
    vec4 u_sizeAmountSeed;  // xy: picture size, pixels; z: standard deviation, 1 is from black to white; w: seed
    vec4 u_channels;        // rgb: factor of each channel's noise
};

float rand(vec2 p)
{
    return fract(sin(dot(p, vec2(127.1, 311.7))) * 43758.546875);
}

/// A value of mean 0 and deviation 1, after Box and Muller.
float gaussian(vec2 p)
{
    float seed = u_sizeAmountSeed.w;
    float u1 = max(rand(p + vec2(seed, seed * 0.37)), 1e-6);
    float u2 = rand(p + vec2(19.19 + seed * 1.71, 73.73 - seed * 0.53));
    return sqrt(-2.0 * log(u1)) * cos(6.28318530717959 * u2);
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    vec2 px = floor(v_uv * u_sizeAmountSeed.xy);
    vec3 noise = vec3(gaussian(px), gaussian(px + vec2(17.0, 29.0)), gaussian(px + vec2(43.0, 11.0)));
    fragColor = vec4(clamp(src.rgb + noise * u_sizeAmountSeed.z * u_channels.rgb, 0.0, 1.0), src.a);
}
