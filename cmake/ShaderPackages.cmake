# Shader packages are made by the build with exactly two GLSL targets: 300 es and 330.
