#ifndef ZM_SHAPES_GLSL
#define ZM_SHAPES_GLSL
// Signed distances, negative inside, in the unit of the coordinate.
// Box and segment: Inigo Quilez, "2D distance functions".

// Turns by an angle in radians, clockwise to the eye where y grows downward.
mat2 rotation(float angle)
{
    float c = cos(angle);
    float s = sin(angle);
    return mat2(c, s, -s, c);
}

float sdCircle(vec2 p, float radius) { return length(p) - radius; }

// Around the origin; halfSize is from the middle to the sides.
float sdBox(vec2 p, vec2 halfSize)
{
    vec2 d = abs(p) - halfSize;
    return length(max(d, 0.0)) + min(max(d.x, d.y), 0.0);
}

// The radius is limited to what the box holds.
float sdRoundedBox(vec2 p, vec2 halfSize, float radius)
{
    float r = clamp(radius, 0.0, min(halfSize.x, halfSize.y));
    return sdBox(p, halfSize - r) - r;
}

// The distance to a line from a to b without width.
float sdSegment(vec2 p, vec2 a, vec2 b)
{
    vec2 pa = p - a;
    vec2 ba = b - a;
    return length(pa - ba * clamp(dot(pa, ba) / max(dot(ba, ba), 1e-12), 0.0, 1.0));
}

// How much of a pixel a shape covers, by its distance in pixels.
float coverage(float distanceInPixels) { return clamp(0.5 - distanceInPixels, 0.0, 1.0); }

// step() over about a pixel. The value must run on without jumps from pixel to pixel (a fract() leaves a seam), and no
// branch that differs between neighbours may surround the call.
float aastep(float threshold, float value)
{
    float width = max(0.7 * fwidth(value), 1e-6);
    return smoothstep(threshold - width, threshold + width, value);
}

#endif
