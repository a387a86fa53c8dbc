#version 440
// Triangles of one colour each. A grid of points, one somewhere in each square, is joined to quads and these are split;
// places, splits and colours come in a map beside the picture (common/stacked.glsl): for each square, with one more
// around the picture, the place of its point in it (b: which diagonal splits the quad to the right and below), then
// the colours of the two triangles (a: the light on them, 0.5 is even).
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: eight texture reads, four times that at edges.
#extension GL_GOOGLE_include_directive : require
#include "../common/color.glsl"
#include "../common/shapes.glsl"
#include "../common/stacked.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6;
};
#define u_size u_param0.xy        // width and height of the picture, pixels
#define u_facetSize u_param1.x    // side of a square, pixels, above 0
#define u_variation u_param2.x    // how strongly facets catch the light, 0..1
#define u_saturation u_param3.x   // 1 changes nothing, 0..2
#define u_edgeWidth u_param4.x    // pixels
#define u_edgeColor u_param5.rgb  // edge colour
#define u_seed u_param6.x         // in the map

struct Point
{
    vec2 place; // in squares
    ivec2 square;
    bool falling; // whether the quad to the right and below is split from the north-west to the south-east
};

Point pointOf(ivec2 square, ivec2 origin)
{
    vec4 entry = fetchStackedMap(u_input, origin, ivec2((square.x + 1) * 3, square.y + 1));
    return Point(vec2(square) + entry.xy, square, entry.z > 0.5);
}

float turn(vec2 a, vec2 b) { return a.x * b.y - a.y * b.x; }
float toLine(vec2 p, vec2 a, vec2 b) { return turn(b - a, p - a) * inversesqrt(max(dot(b - a, b - a), 1e-12)); }

// The facet at a place in squares; w: how far its nearest edge is, squares.
vec4 facetAt(vec2 p, ivec2 origin)
{
    // A place lies in one of the four quads around the point of its square: the lines from there to the points next to
    // it tell in which.
    ivec2 home = ivec2(floor(p));
    Point middle = pointOf(home, origin);
    Point north = pointOf(home - ivec2(0, 1), origin);
    Point south = pointOf(home + ivec2(0, 1), origin);
    Point west = pointOf(home - ivec2(1, 0), origin);
    Point east = pointOf(home + ivec2(1, 0), origin);
    vec2 away = p - middle.place;
    bool rightOfNorth = turn(north.place - middle.place, away) >= 0.0;
    bool rightOfSouth = turn(south.place - middle.place, away) <= 0.0;
    bool belowEast = turn(east.place - middle.place, away) >= 0.0;
    bool belowWest = turn(west.place - middle.place, away) <= 0.0;
    bool inNorthEast = rightOfNorth && !belowEast;
    bool inSouthEast = !inNorthEast && belowEast && rightOfSouth;
    bool inSouthWest = !inNorthEast && !inSouthEast && belowWest && !rightOfSouth;
    Point corner = pointOf(home + ivec2(inNorthEast || inSouthEast ? 1 : -1, inSouthEast || inSouthWest ? 1 : -1), origin);
    Point nw = corner;
    Point ne = north;
    Point sw = west;
    Point se = middle;
    if (inNorthEast) {
        nw = north;
        ne = corner;
        sw = middle;
        se = east;
    } else if (inSouthEast) {
        nw = middle;
        ne = east;
        sw = south;
        se = corner;
    } else if (inSouthWest) {
        nw = west;
        ne = middle;
        sw = corner;
        se = south;
    }

    // And on one side of the quad's diagonal.
    bool falling = nw.falling;
    Point a = nw;
    Point to = se;
    if (!falling) {
        a = ne;
        to = sw;
    }
    bool left = turn(to.place - a.place, p - a.place) < 0.0;
    Point apex = falling ? (left ? ne : sw) : (left ? se : nw);
    Point b = left ? apex : to;
    Point c = left ? to : apex;
    float distance = min(toLine(p, a.place, b.place), min(toLine(p, b.place, c.place), toLine(p, c.place, a.place)));
    ivec2 color = ivec2((nw.square.x + 1) * 3 + (falling == left ? 1 : 2), nw.square.y + 1);
    vec4 entry = fetchStackedMap(u_input, origin, color);
    vec3 rgb = saturated(entry.rgb, u_saturation);
    float light = (2.0 * entry.a - 1.0) * u_variation;
    rgb = light > 0.0 ? mix(rgb, vec3(1.0), light * 0.3) : rgb * (1.0 + 0.45 * light);
    return vec4(rgb, max(distance, 0.0));
}

vec3 drawnAt(vec4 facet, float width)
{
    float line = coverage(facet.w * u_facetSize - 0.5 * max(width, 1.0)) * min(width, 1.0);
    return mix(facet.rgb, u_edgeColor, line);
}

void main()
{
    vec2 size = u_size;
    float facetSize = max(u_facetSize, 0.01);
    ivec2 origin = mapOrigin(u_input, size);
    vec2 p = v_uv * size / facetSize;
    vec4 facet = facetAt(p, origin);
    vec3 rgb = drawnAt(facet, u_edgeWidth);
    if (facet.w * facetSize < 0.75) {
        // An edge crosses this pixel: four places of a turned square see how much lies on either side.
        vec3 sum = vec3(0.0);
        for (int i = 0; i < 4; ++i) {
            vec2 corner = vec2(i & 1, i >> 1) - 0.5;
            vec2 offset = vec2(0.5 * corner.x + 0.25 * corner.y, 0.5 * corner.y - 0.25 * corner.x);
            sum += drawnAt(facetAt(p + offset / facetSize, origin), u_edgeWidth);
        }
        rgb = 0.25 * sum;
    }
    fragColor = vec4(rgb, readStackedPicture(u_input, size, v_uv).a);
}
