#ifndef ZM_DRIFT_LINES_GLSL
#define ZM_DRIFT_LINES_GLSL
// The parallel lines of pixels along which pixel drift sorts, and the blocks that each line is cut into. The two passes
// that read the picture must agree in all of it.

struct DriftLines
{
    ivec2 size;       // of the picture, pixels
    bool vertical;    // walked along y
    float slope;      // pixels to the side for each step along
    int acrossOffset; // makes the numbers of lines start at 0
    bool reversed;    // walked against the axis
};

DriftLines driftLines(vec4 sourceBatch, vec4 streak, vec4 lineMapping)
{
    return DriftLines(ivec2(sourceBatch.xy), streak.y > 0.5, lineMapping.x, int(lineMapping.y), lineMapping.z > 0.5);
}

int axisSize(DriftLines lines) { return lines.vertical ? lines.size.y : lines.size.x; }
int minorSize(DriftLines lines) { return lines.vertical ? lines.size.x : lines.size.y; }

// How far a line has moved to the side after `along` steps.
int sideStep(DriftLines lines, int along) { return int(floor(lines.slope * float(along) + 0.5)); }

int minorCoordinate(DriftLines lines, int along, int across)
{
    return across - lines.acrossOffset + sideStep(lines, along);
}

// The pixel at a place of a line.
ivec2 drifted(DriftLines lines, int along, int across)
{
    int major = lines.reversed ? axisSize(lines) - 1 - along : along;
    int minor = minorCoordinate(lines, along, across);
    return lines.vertical ? ivec2(minor, major) : ivec2(major, minor);
}

bool lineContains(DriftLines lines, int along, int across)
{
    int minor = minorCoordinate(lines, along, across);
    return along >= 0 && along < axisSize(lines) && minor >= 0 && minor < minorSize(lines);
}

// The first place of a line inside the picture and the one behind its last. Equal for a line that misses the picture.
ivec2 clippedLine(DriftLines lines, int across)
{
    int axis = axisSize(lines);
    int base = across - lines.acrossOffset;
    if (lines.slope == 0.0)
        return base >= 0 && base < minorSize(lines) ? ivec2(0, axis) : ivec2(0);
    // Where the line, before rounding, enters the first row beside it and leaves the last.
    float atLow = (-float(base) - 0.5) / lines.slope;
    float atHigh = (float(minorSize(lines) - base) - 0.5) / lines.slope;
    vec2 bounds = lines.slope > 0.0 ? ceil(vec2(atLow, atHigh)) : floor(vec2(atHigh, atLow)) + 1.0;
    ivec2 line = ivec2(clamp(bounds, 0.0, float(axis)));
    // Rounding may put either end one off.
    if (lineContains(lines, line.x - 1, across))
        --line.x;
    else if (line.x < line.y && !lineContains(lines, line.x, across))
        ++line.x;
    if (lineContains(lines, line.y, across))
        ++line.y;
    else if (line.y > line.x && !lineContains(lines, line.y - 1, across))
        --line.y;
    return line;
}

// 0..1. After Dave Hoskins, "Hash without Sine".
float driftHash(vec2 p)
{
    vec3 q = fract(p.xyx * 0.1031);
    q += dot(q, q.yzx + 33.33);
    return fract((q.x + q.y) * q.z);
}

// How far the blocks of a line begin before it does. Neighbouring lines of a group share it.
int blockOffset(int across, int span, float lineGroup, float seed)
{
    float line = floor((float(across) + 0.5) / lineGroup);
    return int(floor(driftHash(vec2(line, seed + 7.13)) * float(span)));
}

struct DriftBlock
{
    int start;  // along
    int pixels; // pixels; not above 0 for a block beyond the line
    int count;  // slots in use: even samples where there are more pixels than slots
};

const int kMaximumSlots = 64;

DriftBlock driftBlock(ivec2 line, int block, int span, int offset)
{
    int rawStart = block * span - offset;
    int start = line.x + max(0, rawStart);
    int end = line.x + min(line.y - line.x, rawStart + span);
    return DriftBlock(start, end - start, min(kMaximumSlots, end - start));
}

#endif
