#ifndef ZM_SAMPLING_GLSL
#define ZM_SAMPLING_GLSL
// Reads of pictures with straight alpha. Neighbours are weighted by their alpha, so that the colour of transparent
// pixels never shows. uv: 0..1, (0, 0) top left. Textures are taken to filter linearly.
#include "color.glsl"

vec4 premultiplied(vec4 color) { return vec4(color.rgb * color.a, color.a); }
vec4 straight(vec4 color) { return color.a > 0.0 ? vec4(color.rgb / color.a, color.a) : vec4(0.0); }

// Moves uv half a texel inside the picture, where nothing but the picture is read.
vec2 inside(sampler2D image, vec2 uv)
{
    vec2 margin = 0.5 / vec2(textureSize(image, 0));
    return clamp(uv, margin, 1.0 - margin);
}

// Linear, unweighted: for a place that is the middle of a texel, or a picture without transparency. One read. The
// texture is one that repeats its rim, as all but masks do, so that nothing but the picture is read.
vec4 readInside(sampler2D image, vec2 uv) { return texture(image, uv); }

// Linear, weighted by alpha, premultiplied: what to sum up and divide at the end with straight(). Four reads.
vec4 readPremultiplied(sampler2D image, vec2 uv)
{
    ivec2 last = textureSize(image, 0) - 1;
    vec2 position = inside(image, uv) * vec2(last + 1) - 0.5;
    ivec2 texel = ivec2(floor(position));
    vec2 f = position - vec2(texel);
    ivec2 low = clamp(texel, ivec2(0), last);
    ivec2 high = clamp(texel + 1, ivec2(0), last);
    vec4 top = mix(premultiplied(texelFetch(image, low, 0)),
                   premultiplied(texelFetch(image, ivec2(high.x, low.y), 0)), f.x);
    vec4 bottom = mix(premultiplied(texelFetch(image, ivec2(low.x, high.y), 0)),
                      premultiplied(texelFetch(image, high, 0)), f.x);
    return mix(top, bottom, f.y);
}

// The same with straight alpha: for displaced reads.
vec4 readSmooth(sampler2D image, vec2 uv) { return straight(readPremultiplied(image, uv)); }

// Catmull-Rom: sharper than linear where a picture is enlarged or turned. Sixteen texels by nine linear reads (Matt
// Pettineo, "Bicubic Catmull-Rom texture sampling"); clamped, since the kernel rings beyond 0..1 at hard edges.
vec4 readBicubic(sampler2D image, vec2 uv)
{
    vec2 size = vec2(textureSize(image, 0));
    vec2 position = inside(image, uv) * size;
    vec2 texel = floor(position - 0.5) + 0.5;
    vec2 f = position - texel;
    vec2 w0 = f * (-0.5 + f * (1.0 - 0.5 * f));
    vec2 w1 = 1.0 + f * f * (-2.5 + 1.5 * f);
    vec2 w2 = f * (0.5 + f * (2.0 - 1.5 * f));
    vec2 w3 = f * f * (-0.5 + 0.5 * f);
    vec2 weight[3] = vec2[](w0, w1 + w2, w3);
    vec2 place[3] = vec2[]((texel - 1.0) / size, (texel + w2 / (w1 + w2)) / size, (texel + 2.0) / size);
    vec4 sum = vec4(0.0);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 3; ++x)
            sum += weight[x].x * weight[y].y * premultiplied(readInside(image, vec2(place[x].x, place[y].y)));
    return clamp(straight(clamp(sum, 0.0, 1.0)), 0.0, 1.0);
}

// Luminance over black: transparent pixels count as black, so that the outline of a layer is an edge like any other.
float coveredLuminance(sampler2D image, vec2 uv)
{
    vec4 color = readInside(image, uv);
    return luminance(color.rgb) * color.a;
}

// The Sobel sums in x and y over the eight neighbours at `reach` (in uv, one texel or more), within -4..4: eight times
// the change of luminance over one reach. Eight reads.
vec2 sobelGradient(sampler2D image, vec2 uv, vec2 reach)
{
    float nw = coveredLuminance(image, uv - reach);
    float n = coveredLuminance(image, uv + vec2(0.0, -reach.y));
    float ne = coveredLuminance(image, uv + vec2(reach.x, -reach.y));
    float w = coveredLuminance(image, uv + vec2(-reach.x, 0.0));
    float e = coveredLuminance(image, uv + vec2(reach.x, 0.0));
    float sw = coveredLuminance(image, uv + vec2(-reach.x, reach.y));
    float s = coveredLuminance(image, uv + vec2(0.0, reach.y));
    float se = coveredLuminance(image, uv + reach);
    return vec2(ne + 2.0 * e + se - nw - 2.0 * w - sw, sw + 2.0 * s + se - nw - 2.0 * n - ne);
}

// The smoothed structure tensor: the means of gx * gx, gx * gy and gy * gy around uv, from the gradients of the nine
// cells of a grid of 4 x 4 places `reach` apart (in uv), weighted 1 2 1. Sixteen reads. Means of tensors are tensors.
vec3 structureTensor(sampler2D image, vec2 uv, vec2 reach)
{
    vec3 sum = vec3(0.0);
    vec4 above = vec4(0.0);
    for (int y = 0; y < 4; ++y) {
        vec4 row;
        for (int x = 0; x < 4; ++x)
            row[x] = coveredLuminance(image, uv + (vec2(float(x), float(y)) - 1.5) * reach);
        if (y > 0) {
            vec3 gx = 0.5 * (above.yzw - above.xyz + row.yzw - row.xyz);
            vec3 gy = 0.5 * (row.xyz + row.yzw - above.xyz - above.yzw);
            vec3 weight = vec3(1.0, 2.0, 1.0) * (y == 2 ? 2.0 : 1.0) / 16.0;
            sum += vec3(dot(weight, gx * gx), dot(weight, gx * gy), dot(weight, gy * gy));
        }
        above = row;
    }
    return sum;
}

// What a tensor says: xy, the unit direction along the contours (its sign means nothing; y grows downward); z, how much
// the surroundings agree on it, 0..1. Flat surroundings give (1, 0) and 0. Kyprianidis and Kang, "Image and Video
// Abstraction by Coherence-Enhancing Filtering", 2011.
vec3 contourDirection(vec3 tensor)
{
    float spread = length(vec2(tensor.x - tensor.z, 2.0 * tensor.y));
    float total = tensor.x + tensor.z;
    if (spread < 1e-7)
        return vec3(1.0, 0.0, 0.0);
    float doubled = (tensor.x - tensor.z) / spread; // the cosine of twice the gradient's angle
    vec2 gradient = sqrt(max(0.5 + 0.5 * vec2(doubled, -doubled), 0.0));
    return vec3(tensor.y < 0.0 ? gradient.y : -gradient.y, gradient.x, clamp(spread / max(total, 1e-7), 0.0, 1.0));
}

#endif
