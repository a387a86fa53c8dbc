#pragma once

#include "rendering/texture_edge.h"

#include <QImage>
#include <QOpenGLFramebufferObject>
#include <QSize>
#include <qopengl.h>

#include <memory>
#include <utility>

class QOpenGLExtraFunctions;

namespace zm {

// How pictures cross the border to the GPU and back. All of it needs a current context. Pixels are RGBA8888 with
// straight alpha throughout; the first row of a picture is the first row of its texture.

/// A texture name that deletes itself, with its context current.
class OwnedTexture
{
public:
    OwnedTexture() = default;
    OwnedTexture(QOpenGLExtraFunctions *functions, GLuint name)
        : m_functions(functions)
        , m_name(name)
    {
    }
    OwnedTexture(OwnedTexture &&other) noexcept
        : m_functions(other.m_functions)
        , m_name(std::exchange(other.m_name, 0))
    {
    }
    OwnedTexture &operator=(OwnedTexture &&other) noexcept
    {
        std::swap(m_functions, other.m_functions);
        std::swap(m_name, other.m_name);
        return *this;
    }
    ~OwnedTexture() { reset(); }
    Q_DISABLE_COPY(OwnedTexture)

    GLuint name() const { return m_name; } ///< 0: no texture
    void reset();

private:
    QOpenGLExtraFunctions *m_functions = nullptr;
    GLuint m_name = 0;
};

/// Uploads an RGBA8888 picture into a linearly filtered texture. Name 0 when the picture is null, larger than the
/// driver takes, or does not fit into its memory.
OwnedTexture uploadTexture(QOpenGLExtraFunctions *functions, const QImage &image, TextureEdge edge);

/// A target of `size` pixels whose texture is linearly filtered, with unset contents; null when the driver refuses.
std::unique_ptr<QOpenGLFramebufferObject> createFramebuffer(QOpenGLExtraFunctions *functions, const QSize &size,
                                                            TextureEdge edge = TextureEdge::Clamp);

/// The framebuffer's pixels as RGBA8888, first row first; null when the image cannot be allocated.
QImage readFramebuffer(QOpenGLExtraFunctions *functions, const QOpenGLFramebufferObject &framebuffer);

} // namespace zm
