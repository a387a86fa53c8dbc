#version 440
// Moves every entry to its rank within its run, the neighbouring slots that take part: a point for each entry, without
// attributes. Cost: at most 127 texture reads an entry.
layout(location = 0) out vec4 v_entry;
layout(binding = 0) uniform sampler2D u_atlas;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0;  // width and height of both textures; unused; slots of a block, at most 64
};

const int kFarthestNeighbour = 63;

vec4 entryAt(int index)
{
    int width = int(u_param0.x);
    return texelFetch(u_atlas, ivec2(index % width, index / width), 0);
}

// Equal keys keep their order.
bool precedes(vec4 a, vec4 b) { return a.y < b.y || (a.y == b.y && a.w < b.w); }

void main()
{
    int slots = int(u_param0.w);
    int index = gl_VertexIndex;
    vec4 entry = entryAt(index);
    int bin = index % slots;
    int destination = index;
    if (entry.x > 0.5) {
        int start = bin;
        int rank = 0;
        for (int i = 1; i <= kFarthestNeighbour && i <= bin; ++i) {
            vec4 other = entryAt(index - i);
            if (other.x <= 0.5)
                break;
            start = bin - i;
            rank += precedes(other, entry) ? 1 : 0;
        }
        for (int i = 1; i <= kFarthestNeighbour && bin + i < slots; ++i) {
            vec4 other = entryAt(index + i);
            if (other.x <= 0.5)
                break;
            rank += precedes(other, entry) ? 1 : 0;
        }
        destination = index - bin + start + rank;
    }
    int width = int(u_param0.x);
    vec2 center = vec2(float(destination % width), float(destination / width)) + 0.5;
    gl_Position = vec4(center / u_param0.xy * 2.0 - 1.0, 0.0, 1.0);
    gl_PointSize = 1.0;
    v_entry = entry;
}
