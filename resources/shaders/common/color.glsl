#ifndef ZM_COLOR_GLSL
#define ZM_COLOR_GLSL
// Colour arithmetic. Encoded means sRGB as stored, linear means light. All take and give 0..1 unless said otherwise.

// Of encoded colour: the weights of Rec. 601.
float luminance(vec3 encoded) { return dot(encoded, vec3(0.299, 0.587, 0.114)); }
// Of linear colour: the weights of Rec. 709.
float linearLuminance(vec3 linear) { return dot(linear, vec3(0.2126, 0.7152, 0.0722)); }

// The transfer function of sRGB, IEC 61966-2-1. Its powers are polynomials, right to a fifteenth of a level of 255:
// a power costs several times as much where no GPU helps.
vec3 toLinear(vec3 encoded)
{
    vec3 c = max(encoded, 0.0);
    vec3 power = (((-0.1168008 * c + 0.5265360) * c + 0.5603537) * c + 0.0284085) * c + 0.0010460;
    return mix(power, c / 12.92, lessThan(c, vec3(0.04045)));
}

vec3 toEncoded(vec3 linear)
{
    vec3 c = max(linear, 0.0);
    vec3 q = sqrt(sqrt(c));
    vec3 power = (((0.0813347 * q - 0.3355194) * q + 1.1227032) * q + 0.1961255) * q - 0.0646099;
    return mix(power, c * 12.92, lessThan(c, vec3(0.0031308)));
}

// Hue as 0..1 (red, yellow at 1/6, green at 1/3); 0 for grey.
float hueOf(vec3 c, float high, float chroma)
{
    if (chroma <= 0.0)
        return 0.0;
    float sector = high == c.r ? (c.g - c.b) / chroma
        : high == c.g          ? (c.b - c.r) / chroma + 2.0
                               : (c.r - c.g) / chroma + 4.0;
    return fract(sector / 6.0);
}

// The colour of a hue at full saturation and value. Any hue; it wraps.
vec3 pureHue(float hue) { return clamp(abs(fract(hue + vec3(0.0, 2.0 / 3.0, 1.0 / 3.0)) * 6.0 - 3.0) - 1.0, 0.0, 1.0); }

vec3 rgbToHsv(vec3 c)
{
    float high = max(c.r, max(c.g, c.b));
    float chroma = high - min(c.r, min(c.g, c.b));
    return vec3(hueOf(c, high, chroma), high > 0.0 ? chroma / high : 0.0, high);
}

vec3 hsvToRgb(vec3 hsv) { return hsv.z * mix(vec3(1.0), pureHue(hsv.x), hsv.y); }

vec3 rgbToHsl(vec3 c)
{
    float high = max(c.r, max(c.g, c.b));
    float low = min(c.r, min(c.g, c.b));
    float room = 1.0 - abs(high + low - 1.0);
    return vec3(hueOf(c, high, high - low), room > 0.0 ? (high - low) / room : 0.0, 0.5 * (high + low));
}

vec3 hslToRgb(vec3 hsl)
{
    return hsl.z + hsl.y * (1.0 - abs(2.0 * hsl.z - 1.0)) * (pureHue(hsl.x) - 0.5);
}

// The cube root of numbers not below 0: a third of the exponent as a start, then Halley's step, right to 1e-5.
vec3 cubeRoot(vec3 x)
{
    vec3 a = max(x, 1e-12);
    vec3 y = intBitsToFloat(ivec3(vec3(floatBitsToInt(a)) * (1.0 / 3.0)) + 709921077);
    vec3 cube = y * y * y;
    return y * (cube + 2.0 * a) / (2.0 * cube + a);
}

// Bjorn Ottosson, "A perceptual color space for image processing", 2020: lightness 0..1, a and b about -0.4..0.4.
vec3 linearToOklab(vec3 linear)
{
    vec3 lms = mat3(0.4122214708, 0.2119034982, 0.0883024619,
                    0.5363325363, 0.6806995451, 0.2817188376,
                    0.0514459929, 0.1073969566, 0.6299787005) * linear;
    lms = cubeRoot(lms);
    return mat3(0.2104542553, 1.9779984951, 0.0259040371,
                0.7936177850, -2.4285922050, 0.7827717662,
                -0.0040720468, 0.4505937099, -0.8086757660) * lms;
}

// Colours that sRGB does not hold come out beyond 0..1.
vec3 oklabToLinear(vec3 lab)
{
    vec3 lms = mat3(1.0, 1.0, 1.0,
                    0.3963377774, -0.1055613458, -0.0894841775,
                    0.2158037573, -0.0638541728, -1.2914855480) * lab;
    return mat3(4.0767416621, -1.2684380046, -0.0041960863,
                -3.3077115913, 2.6097574011, -0.7034186147,
                0.2309699292, -0.3413193965, 1.7076147010) * (lms * lms * lms);
}

vec3 encodedToOklab(vec3 encoded) { return linearToOklab(toLinear(encoded)); }
vec3 oklabToEncoded(vec3 lab) { return toEncoded(clamp(oklabToLinear(lab), 0.0, 1.0)); }

// Chroma times `amount` at the same lightness, as far as the lightness leaves room. Nearly grey stays.
vec3 saturated(vec3 color, float amount)
{
    float high = max(color.r, max(color.g, color.b));
    float low = min(color.r, min(color.g, color.b));
    float chroma = high - low;
    if (chroma < 0.001)
        return color;
    float lightness = 0.5 * (high + low);
    float available = 2.0 * min(lightness, 1.0 - lightness);
    return lightness + (color - lightness) * min(amount, available / chroma);
}

// 1 changes nothing; not clamped.
vec3 contrasted(vec3 color, float amount) { return (color - 0.5) * amount + 0.5; }
float contrasted(float value, float amount) { return (value - 0.5) * amount + 0.5; }

// Blends of `top` over `base`, both opaque: W3C, "Compositing and Blending Level 1".
vec3 blendScreen(vec3 base, vec3 top) { return base + top - base * top; }

vec3 blendOverlay(vec3 base, vec3 top)
{
    return mix(2.0 * base * top, 1.0 - 2.0 * (1.0 - base) * (1.0 - top), step(0.5, base));
}

vec3 blendSoftLight(vec3 base, vec3 top)
{
    vec3 c = clamp(base, 0.0, 1.0);
    vec3 lifted = mix(((16.0 * c - 12.0) * c + 4.0) * c, sqrt(c), step(0.25, c));
    return c + (2.0 * top - 1.0) * mix(c * (1.0 - c), lifted - c, step(0.5, top));
}

// Into 0..1 by moving towards the grey of the same luminance: unlike clamping it shifts no hue.
vec3 fitted(vec3 encoded)
{
    float grey = clamp(luminance(encoded), 0.0, 1.0);
    float high = max(encoded.r, max(encoded.g, encoded.b));
    float low = min(encoded.r, min(encoded.g, encoded.b));
    float share = min(1.0, min((1.0 - grey) / max(high - grey, 1e-4), grey / max(grey - low, 1e-4)));
    return clamp(grey + (encoded - grey) * share, 0.0, 1.0);
}

// An S through (0, 0), (0.5, 0.5) and (1, 1). amount: -1 (half as steep) .. 0 (as it is) .. 1.
float curved(float tone, float amount)
{
    float t = clamp(tone, 0.0, 1.0);
    float steep = t * t * (3.0 - 2.0 * t);
    return t + amount * (amount > 0.0 ? steep - t : (t - 0.5) * 0.5);
}

#endif
