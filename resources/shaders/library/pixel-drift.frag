#version 440
// Lays the sorted entries over the picture: each pixel of a run takes the colour whose rank is the pixel's place.
// In and out: straight alpha, (0, 0) top left; alpha is kept. Pixels of lines that are not in the batch stay.
// Cost: at most three reads of the picture and three of the entries.
#extension GL_GOOGLE_include_directive : require
#include "../common/drift_lines.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(binding = 1) uniform sampler2D u_sorted;
layout(std140, binding = 2) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2, u_param3, u_param4; };
#define u_sourceBatch u_param0  // width and height, pixels; first line; number of lines
#define u_atlasLayout u_param1  // width, height; blocks of a line; slots of a block
#define u_streak u_param2       // pixels of a block; 1 walks along y; lines of a group, at least 1; seed
#define u_amount u_param3.x     // share of the sorted picture, 0..1
#define u_lineMapping u_param4  // slope; across offset; 1 walks against the axis

void main()
{
    DriftLines lines = driftLines(u_sourceBatch, u_streak, u_lineMapping);
    ivec2 texel = ivec2(gl_FragCoord.xy);
    int major = lines.vertical ? texel.y : texel.x;
    int minor = lines.vertical ? texel.x : texel.y;
    int along = lines.reversed ? axisSize(lines) - 1 - major : major;
    int across = minor - sideStep(lines, along) + lines.acrossOffset;
    int localLine = across - int(u_sourceBatch.z);
    if (localLine < 0 || localLine >= int(u_sourceBatch.w))
        discard;

    vec4 source = texelFetch(u_input, texel, 0);
    fragColor = source;
    if (source.a <= 1e-5) {
        fragColor = vec4(0.0);
        return;
    }
    ivec2 line = clippedLine(lines, across);
    if (along < line.x || along >= line.y)
        return;

    int blocks = int(u_atlasLayout.z);
    int slots = int(u_atlasLayout.w);
    int span = int(u_streak.x);
    int offset = blockOffset(across, span, u_streak.z, u_streak.w);
    int blockIndex = (along - line.x + offset) / span;
    DriftBlock block = driftBlock(line, blockIndex, span, offset);
    int base = (localLine * blocks + blockIndex) * slots;
    int width = int(u_atlasLayout.x);
    int row = base / width;
    ivec2 first = ivec2(base - row * width, row); // of the block, whose entries lie in one row
    int slot = clamp(((2 * (along - block.start) + 1) * block.count) / (2 * block.pixels), 0, block.count - 1);
    vec4 entry = texelFetch(u_sorted, first + ivec2(slot, 0), 0);
    if (entry.x <= 0.5)
        return;

    vec3 color = texelFetch(u_input, drifted(lines, int(entry.z), across), 0).rgb;
    if (block.pixels > block.count) { // pixels between two samples take what lies between their colours
        float position = (float(along - block.start) + 0.5) * float(block.count) / float(block.pixels) - 0.5;
        int left = clamp(int(floor(position)), 0, block.count - 1);
        vec4 low = texelFetch(u_sorted, first + ivec2(left, 0), 0);
        vec4 high = texelFetch(u_sorted, first + ivec2(min(left + 1, block.count - 1), 0), 0);
        if (low.x > 0.5 && high.x > 0.5) {
            vec3 lowColor = texelFetch(u_input, drifted(lines, int(low.z), across), 0).rgb;
            vec3 highColor = texelFetch(u_input, drifted(lines, int(high.z), across), 0).rgb;
            color = mix(lowColor, highColor, clamp(position - float(left), 0.0, 1.0));
        }
    }
    fragColor = vec4(clamp(mix(source.rgb, color, u_amount), 0.0, 1.0), source.a);
}
