#ifndef ZM_CORNERS_GLSL
#define ZM_CORNERS_GLSL
// Boxes with shaped corners.

const int kCornerRound = 0;
const int kCornerSquircle = 1; // flows into the sides without a jump in curvature
const int kCornerScooped = 2;  // a quarter of a disc is bitten out
const int kCornerCut = 3;      // a straight cut
const int kCornerNotched = 4;  // a square is bitten out

// The two sides of a corner meet along its diagonal; over two pixels one normal passes into the other.
vec2 sideNormal(vec2 toSides)
{
    float x = clamp(0.5 + 0.5 * (toSides.x - toSides.y), 0.0, 1.0);
    return vec2(x, 1.0 - x);
}

// For a point inside a box around the origin, in pixels. xy: the outward normal of the nearest edge, its larger part at
// most 1; z: the distance to it, negative inside. What a corner takes lies within a square of `radius` at it (a
// squircle reaches further along the sides); the radius is limited to what the box holds.
vec3 corneredBox(vec2 p, vec2 halfSize, float radius, int style)
{
    vec2 outside = abs(p) - halfSize; // negative
    float room = min(halfSize.x, halfSize.y);
    float r = clamp(radius, 0.0, room);
    vec3 edge = vec3(sideNormal(outside), max(outside.x, outside.y));
    vec2 q = outside + r;
    if (style == kCornerSquircle) {
        // Of the fourth power; 1.84 takes as much of the corner's diagonal as the round corner does.
        r = min(1.84 * r, room);
        q = outside + r;
        if (r > 0.0 && min(q.x, q.y) > 0.0) {
            vec2 squared = q * q;
            float norm = sqrt(sqrt(dot(squared, squared)));
            vec2 slope = squared * q / (norm * norm * norm);
            edge = vec3(normalize(slope), (norm - r) / length(slope));
        }
    } else if (r <= 0.0) {
        // Square corners.
    } else if (style == kCornerScooped) {
        float fromCorner = length(outside);
        if (r - fromCorner > edge.z)
            edge = vec3(-outside / max(fromCorner, 1e-4), r - fromCorner);
    } else if (style == kCornerCut) {
        float beyond = (q.x + q.y - r) * 0.70710678;
        if (beyond > edge.z)
            edge = vec3(vec2(0.70710678), beyond);
    } else if (style == kCornerNotched) {
        float beyond = min(q.x, q.y);
        if (beyond > edge.z)
            edge = vec3(sideNormal(-q), beyond);
    } else if (min(q.x, q.y) > 0.0) {
        float fromCentre = length(q);
        edge = vec3(q / fromCentre, fromCentre - r);
    }
    return vec3(edge.xy * vec2(p.x < 0.0 ? -1.0 : 1.0, p.y < 0.0 ? -1.0 : 1.0), edge.z);
}

#endif
