#ifndef ZM_HASH_GLSL
#define ZM_HASH_GLSL
// Pseudo-random numbers from whole numbers, the same bits with every driver.
// PCG and PCG3D: Jarzynski and Olano, "Hash Functions for GPU Rendering", JCGT 9(3), 2020.

uint pcg(uint v)
{
    uint state = v * 747796405u + 2891336453u;
    uint word = ((state >> ((state >> 28u) + 4u)) ^ state) * 277803737u;
    return (word >> 22u) ^ word;
}

uvec4 pcg(uvec4 v)
{
    uvec4 state = v * 747796405u + 2891336453u;
    uvec4 word = ((state >> ((state >> 28u) + 4u)) ^ state) * 277803737u;
    return (word >> 22u) ^ word;
}

uvec3 pcg3d(uvec3 v)
{
    v = v * 1664525u + 1013904223u;
    v.x += v.y * v.z;
    v.y += v.z * v.x;
    v.z += v.x * v.y;
    v ^= v >> 16u;
    v.x += v.y * v.z;
    v.y += v.z * v.x;
    v.z += v.x * v.y;
    return v;
}

// The upper 24 bits as a number in 0..1, 1 excluded: what a float holds without rounding. By way of a signed integer,
// which processors turn into a float in one step.
float unitFloat(uint bits) { return float(int(bits >> 8u)) * (1.0 / 16777216.0); }
vec3 unitFloat(uvec3 bits) { return vec3(ivec3(bits >> 8u)) * (1.0 / 16777216.0); }
vec4 unitFloat(uvec4 bits) { return vec4(ivec4(bits >> 8u)) * (1.0 / 16777216.0); }

// A uniform that holds a seed, whole or not, as the seed of the functions below. Layers of one effect take seed + 1u,
// seed + 2u and so on: they have nothing in common.
uint seedBits(float seed) { return pcg(floatBitsToUint(seed)); }

// All in 0..1, 1 excluded. hash<inputs><outputs>.
float hash11(uint v) { return unitFloat(pcg(v)); }
float hash11(int v) { return unitFloat(pcg(uint(v))); }
float hash11(int v, uint seed) { return unitFloat(pcg(uint(v) + pcg(seed))); }
float hash21(ivec2 cell, uint seed) { return unitFloat(pcg(uint(cell.x) + pcg(uint(cell.y) + pcg(seed)))); }
vec3 hash23(ivec2 cell, uint seed) { return unitFloat(pcg3d(uvec3(cell, seed))); }
vec2 hash22(ivec2 cell, uint seed) { return hash23(cell, seed).xy; }
vec3 hash33(ivec3 cell) { return unitFloat(pcg3d(uvec3(cell))); }

#endif
