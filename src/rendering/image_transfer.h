#pragma once

#include "rendering/texture_edge.h"

#include <QImage>
#include <QOpenGLFramebufferObject>
#include <QSize>
#include <qopengl.h>

#include <memory>

class QOpenGLExtraFunctions;

namespace zm {

// How pictures cross the border to the GPU and back. All of it needs a current context. Pixels are RGBA8888 with
// straight alpha throughout; the first row of a picture is the first row of its texture.

/// A target of `size` pixels whose texture is linearly filtered, with unset contents; null when the driver refuses, as
/// it does above its largest texture. Shaders read one that keeps only red as grey with alpha 1.
std::unique_ptr<QOpenGLFramebufferObject> createFramebuffer(QOpenGLExtraFunctions *functions, const QSize &size,
                                                            TextureEdge edge = TextureEdge::Clamp,
                                                            bool keepsRedOnly = false);

/// What reads beyond the texture's rim give from now on.
void setTextureEdge(QOpenGLExtraFunctions *functions, GLuint texture, TextureEdge edge);

/// Uploads an RGBA8888 picture into a framebuffer, its first pixel to `place`; false when it does not fit there or the
/// driver refuses.
bool fillFramebuffer(QOpenGLExtraFunctions *functions, const QOpenGLFramebufferObject &framebuffer, const QImage &image,
                     const QPoint &place = {});

/// The framebuffer's pixels as RGBA8888, first row first; null when the image cannot be allocated.
QImage readFramebuffer(QOpenGLExtraFunctions *functions, const QOpenGLFramebufferObject &framebuffer);

} // namespace zm
