// The frame around a region that some utilities draw. Their y is counted from the other end of the picture: its last
// row is row 0.

/// Distances in pixels from the pixel at uv to the region's left, top, right and bottom edge; negative outside.
vec4 distancesToEdges(vec2 uv, vec2 size, vec4 region)
{
    vec2 px = floor(uv * size) + 0.5;  // the pixel's centre exactly, or corners would be ragged where edges tie
    px.y = size.y - px.y;
    return vec4(px - region.xy, region.zw - px);
}

bool isOutside(vec4 distances)
{
    return any(lessThan(distances, vec4(0.0)));
}
