#version 440
// Writes the entry of a point as it is.
layout(location = 0) flat in vec4 v_entry;
layout(location = 0) out vec4 fragColor;

void main() { fragColor = v_entry; }
