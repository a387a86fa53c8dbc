#ifndef ZM_STACKED_GLSL
#define ZM_STACKED_GLSL
// A texture that holds a picture at its top left and a map below it or, where only the width has grown, beside it.
// size: of the picture, mapSize: of the map, both in pixels.

ivec2 mapOrigin(sampler2D stack, vec2 size)
{
    ivec2 picture = ivec2(size + 0.5);
    return textureSize(stack, 0).y > picture.y ? ivec2(0, picture.y) : ivec2(picture.x, 0);
}

// Linear, without mixing in what lies beside the part that is read. uv: 0..1 of that part.
vec4 readStackedPicture(sampler2D stack, vec2 size, vec2 uv)
{
    return textureLod(stack, clamp(uv * size, vec2(0.5), size - 0.5) / vec2(textureSize(stack, 0)), 0.0);
}

vec4 readStackedMap(sampler2D stack, vec2 size, vec2 mapSize, vec2 uv)
{
    vec2 texel = clamp(uv * mapSize, vec2(0.5), mapSize - 0.5) + vec2(mapOrigin(stack, size));
    return textureLod(stack, texel / vec2(textureSize(stack, 0)), 0.0);
}

// One texel of the map, which has to hold it.
vec4 fetchStackedMap(sampler2D stack, ivec2 origin, ivec2 texel) { return texelFetch(stack, origin + texel, 0); }

#endif
