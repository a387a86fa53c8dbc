#pragma once

namespace zm {

/// What generators of textures need from the GPU. Used on the thread that created the renderer.
class ShaderTextureRenderer
{
public:
    virtual ~ShaderTextureRenderer() = default;

    /// The longest side of a texture in pixels; 0 when no OpenGL context could be had.
    virtual int maximumTextureSize() = 0;
};

} // namespace zm
