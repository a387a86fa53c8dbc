#ifndef ZM_EDGES_GLSL
#define ZM_EDGES_GLSL
// Lines along edges, as thin as a pen draws them.

// What nine tones say, one reach apart and row by row: x, how much the tone changes over one reach; y, how far the
// steepest place lies from the middle, in reaches. An edge as soft as the grid is wide is an integral of a Gaussian
// of about one reach; its second derivative over its first is the way to its middle.
vec2 edgeNear(float tones[9])
{
    float gx = (tones[2] + 2.0 * tones[5] + tones[8] - tones[0] - 2.0 * tones[3] - tones[6]) * 0.125;
    float gy = (tones[6] + 2.0 * tones[7] + tones[8] - tones[0] - 2.0 * tones[1] - tones[2]) * 0.125;
    float squared = gx * gx + gy * gy;
    float xx = tones[3] + tones[5] - 2.0 * tones[4];
    float yy = tones[1] + tones[7] - 2.0 * tones[4];
    float xy = (tones[8] + tones[0] - tones[2] - tones[6]) * 0.25;
    float across = (gx * gx * xx + 2.0 * gx * gy * xy + gy * gy * yy) / max(squared, 1e-8);
    float steepness = sqrt(squared);
    return vec2(steepness, abs(across) / max(steepness, 1e-4));
}

// How much a line `width` reaches wide along such an edge covers; a pixel is `pixel` reaches.
float penLine(vec2 edge, float width, float pixel)
{
    float soft = 0.5 * pixel + 0.12;
    return 1.0 - smoothstep(0.5 * width - soft, 0.5 * width + soft, edge.y);
}

#endif
