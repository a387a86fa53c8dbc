#version 440
// A tile of patterns, laid over the picture three times in three colours, each time moved on, inside or outside a mask.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Cost: five texture reads.
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_texture;
layout(binding = 2) uniform sampler2D u_mask;
layout(std140, binding = 3) uniform LibraryUniforms {
    vec4 u_param0, u_param1, u_param2, u_param3, u_param4, u_param5, u_param6, u_param7, u_param8;
};
#define u_size u_param0.xy         // width and height, pixels
#define u_texSize u_param1.xy      // width and height of the tile at its own scale, pixels of the picture
#define u_textureScale u_param2.x  // of the tile, above 0
#define u_inverted u_param3.x      // 0 inside the mask, 1 outside
#define u_offset u_param4.xy       // from layer to layer, in tiles
#define u_intensity u_param5.x     // 0..1
#define u_color0 u_param6.rgb      // red, green, blue, 0..1
#define u_color1 u_param7.rgb      // color1
#define u_color2 u_param8.rgb      // color2

// The tile's alpha, in tiles. Within half a texel of the tile's border its own filtering would not look over to the
// other side, and a hairline would show.
float patternAt(vec2 place)
{
    vec2 uv = fract(place);
    ivec2 size = textureSize(u_texture, 0);
    vec2 texel = uv * vec2(size) - 0.5;
    if (texel.x >= 0.0 && texel.y >= 0.0 && texel.x <= float(size.x - 1) && texel.y <= float(size.y - 1))
        return textureLod(u_texture, uv, 0.0).a;
    vec2 f = fract(texel);
    ivec2 low = (ivec2(floor(texel)) + size) % size;
    ivec2 high = (low + 1) % size;
    vec2 column = mix(vec2(texelFetch(u_texture, low, 0).a, texelFetch(u_texture, ivec2(high.x, low.y), 0).a),
                      vec2(texelFetch(u_texture, ivec2(low.x, high.y), 0).a, texelFetch(u_texture, high, 0).a), f.y);
    return mix(column.x, column.y, f.x);
}

void main()
{
    vec4 src = texture(u_input, v_uv);
    float maskAlpha = texture(u_mask, v_uv).a;
    float area = mix(maskAlpha, 1.0 - maskAlpha, u_inverted) * u_intensity;
    vec2 tileScale = u_size / (u_texSize * max(u_textureScale, 0.01));
    vec2 base = v_uv * tileScale;
    vec3 rgb = src.rgb;
    rgb = mix(rgb, u_color0, patternAt(base) * area);
    rgb = mix(rgb, u_color1, patternAt(base + u_offset) * area);
    rgb = mix(rgb, u_color2, patternAt(base + 2.0 * u_offset) * area);
    fragColor = vec4(rgb, src.a);
}
