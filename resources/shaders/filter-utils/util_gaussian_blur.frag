#version 440
// One direction of a Gaussian blur. The weights come from a recurrence, so that only two exponentials are needed for a
// pixel, and linear filtering lets each texture read cover two neighbouring taps.
// In and out: straight alpha, (0, 0) top left; all four channels are averaged alike. Cost: up to 31 texture reads.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform GaussianBlurUniforms {
    vec4 u_dirTexelSize;  // xy: direction, one of them 1 and the other 0; zw: size of a texel, 0..1
    vec4 u_sigmaRadius;   // x: sigma, pixels, at least 0.5; y: kernel radius, pixels, 1..30
};

const int kMaximumRadius = 30;

void main()
{
    float sigma = max(u_sigmaRadius.x, 0.5);
    float radius = clamp(u_sigmaRadius.y, 1.0, float(kMaximumRadius));
    vec2 d = u_dirTexelSize.xy * u_dirTexelSize.zw;

    // The weight of tap i is exp(-i * i / (2 sigma * sigma)). Neighbouring weights differ by a ratio that itself shrinks
    // by the constant ratioStep.
    float inv = 1.0 / (sigma * sigma);
    float ratioStep = exp(-inv);
    float nextRatio = exp(-0.5 * inv);
    float previousWeight = 1.0;

    vec4 sum = texture(u_input, v_uv);
    float total = 1.0;
    for (int i = 1; i < kMaximumRadius; i += 2) {
        float firstOffset = float(i);
        if (firstOffset > radius)
            break;
        float firstWeight = previousWeight * nextRatio;
        nextRatio *= ratioStep;
        float secondOffset = firstOffset + 1.0;
        float secondWeight = secondOffset <= radius ? firstWeight * nextRatio : 0.0;
        previousWeight = firstWeight * nextRatio;
        nextRatio *= ratioStep;

        float pairWeight = firstWeight + secondWeight;
        float sampleOffset = (firstOffset * firstWeight + secondOffset * secondWeight) / pairWeight;
        vec2 offset = d * sampleOffset;
        sum += pairWeight * (texture(u_input, v_uv + offset) + texture(u_input, v_uv - offset));
        total += 2.0 * pairWeight;
    }
    fragColor = sum / total;
}
