#version 440
// Moves every entry to its rank within its run, the neighbouring slots that take part: a point for each entry, without
// attributes. Cost: at most 127 texture reads an entry.
layout(location = 0) flat out vec4 v_entry;
layout(binding = 0) uniform sampler2D u_atlas;
layout(std140, binding = 1) uniform LibraryUniforms {
    vec4 u_param0;  // width and height of both textures; unused; slots of a block, at most 64
};

const int kFarthestNeighbour = 63;

void main()
{
    // A row holds whole blocks, so that all neighbours are in it; division is dear.
    int slots = int(u_param0.w);
    int width = int(u_param0.x);
    int row = gl_VertexIndex / width;
    int column = gl_VertexIndex - row * width;
    int bin = column % slots;
    vec4 entry = texelFetch(u_atlas, ivec2(column, row), 0);
    int destination = column;
    if (entry.x > 0.5) {
        // Of equal keys the one in the lower slot precedes.
        int before = 0;
        int rank = 0;
        int reach = min(bin, kFarthestNeighbour);
        for (int i = 1; i <= reach; ++i) {
            vec2 other = texelFetch(u_atlas, ivec2(column - i, row), 0).xy;
            if (other.x <= 0.5)
                break;
            before = i;
            rank += other.y <= entry.y ? 1 : 0;
        }
        reach = min(slots - 1 - bin, kFarthestNeighbour);
        for (int i = 1; i <= reach; ++i) {
            vec2 other = texelFetch(u_atlas, ivec2(column + i, row), 0).xy;
            if (other.x <= 0.5)
                break;
            rank += other.y < entry.y ? 1 : 0;
        }
        destination = column - before + rank;
    }
    vec2 center = vec2(float(destination), float(row)) + 0.5;
    gl_Position = vec4(center / u_param0.xy * 2.0 - 1.0, 0.0, 1.0);
    gl_PointSize = 1.0;
    v_entry = entry;
}
