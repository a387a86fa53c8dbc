#version 440
// Cuts the lines of a picture into blocks and writes an entry for each slot of a block: x is 1 for a pixel that takes
// part, 0 for one that does not and -1 for an empty slot, y the sort key, z the place along the line, w the slot.
// In: straight alpha, (0, 0) top left. Cost: one texture read a pixel, at most 129 a slot.
#extension GL_GOOGLE_include_directive : require
#include "../common/drift_lines.glsl"
layout(location = 0) in vec2 v_uv;
layout(location = 0) out vec4 fragColor;
layout(binding = 0) uniform sampler2D u_input;
layout(std140, binding = 1) uniform LibraryUniforms { vec4 u_param0, u_param1, u_param2, u_param3, u_param4; };
#define u_sourceBatch u_param0     // width and height, pixels; first line; number of lines
#define u_atlasLayout u_param1     // width, height; blocks of a line; slots of a block
#define u_streak u_param2          // pixels of a block; 1 walks along y; lines of a group, at least 1; seed
#define u_thresholdOrder u_param3  // lowest and highest brightness that takes part, 0..1; 1 sorts descending
#define u_lineMapping u_param4     // slope; across offset; 1 walks against the axis

const int kMostPixelsOfBin = 128;

float tone(vec4 color) { return dot(color.rgb, vec3(0.2126, 0.7152, 0.0722)); }

bool eligible(vec4 color)
{
    return color.a > 1e-5 && tone(color) >= u_thresholdOrder.x && tone(color) <= u_thresholdOrder.y;
}

void main()
{
    int blocks = int(u_atlasLayout.z);
    int slots = int(u_atlasLayout.w);
    int span = int(u_streak.x);
    ivec2 texel = ivec2(gl_FragCoord.xy);
    int index = texel.y * int(u_atlasLayout.x) + texel.x;
    int localLine = index / (blocks * slots);
    int bin = index % slots;
    fragColor = vec4(-1.0, 0.0, 0.0, float(bin));

    DriftLines lines = driftLines(u_sourceBatch, u_streak, u_lineMapping);
    int across = localLine + int(u_sourceBatch.z);
    ivec2 line = clippedLine(lines, across);
    if (localLine >= int(u_sourceBatch.w) || line.y <= line.x)
        return;
    int offset = blockOffset(across, span, u_streak.z, u_streak.w);
    DriftBlock block = driftBlock(line, (index / slots) % blocks, span, offset);
    if (bin >= block.count)
        return;

    int coordinate = block.start + ((2 * bin + 1) * block.pixels) / (2 * block.count);
    vec4 color = texelFetch(u_input, drifted(lines, coordinate, across), 0);
    bool takesPart = eligible(color);
    if (block.pixels > block.count) { // the bin stands for several pixels
        int first = block.start + (2 * bin * block.pixels + block.count - 1) / (2 * block.count);
        int last = block.start + (2 * (bin + 1) * block.pixels + block.count - 1) / (2 * block.count);
        takesPart = takesPart && last - first <= kMostPixelsOfBin;
        for (int i = 0; i < kMostPixelsOfBin && takesPart && first + i < last; ++i)
            takesPart = eligible(texelFetch(u_input, drifted(lines, first + i, across), 0));
    }
    float key = u_thresholdOrder.z > 0.5 ? 1.0 - tone(color) : tone(color);
    fragColor = vec4(takesPart ? 1.0 : 0.0, key, float(coordinate), float(bin));
}
