#version 440
// The vertex stage of every full-picture pass: a quad over the whole target.
// v_uv (0, 0) is the first row and column of the picture, since the first row is uploaded as the first texture row.
layout(location = 0) in vec2 a_pos;
layout(location = 0) out vec2 v_uv;

void main()
{
    v_uv = a_pos * 0.5 + 0.5;
    gl_Position = vec4(a_pos, 0.0, 1.0);
}
