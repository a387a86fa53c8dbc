#include "rendering/image_transfer.h"

#include "base/pixel_limits.h"
#include "rendering/rendering_log.h"

#include <QOpenGLExtraFunctions>

namespace zm {

namespace {

/// Linear filtering and the edge, for the texture bound to GL_TEXTURE_2D.
void setSampling(QOpenGLExtraFunctions *functions, TextureEdge edge)
{
    functions->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    functions->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    const GLint wrap = edge == TextureEdge::TransparentBorder ? GL_CLAMP_TO_BORDER : GL_CLAMP_TO_EDGE;
    functions->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, wrap);
    functions->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, wrap);
    if (edge == TextureEdge::TransparentBorder) {
        constexpr GLfloat transparent[4] = {0.0F, 0.0F, 0.0F, 0.0F};
        functions->glTexParameterfv(GL_TEXTURE_2D, GL_TEXTURE_BORDER_COLOR, transparent);
    }
}

/// Forgets what went wrong before; bounded, since a lost context reports an error for ever.
void clearErrors(QOpenGLExtraFunctions *functions)
{
    constexpr int mostPendingErrors = 16;
    for (int i = 0; i < mostPendingErrors && functions->glGetError() != GL_NO_ERROR; ++i) {
    }
}

} // namespace

bool fillFramebuffer(QOpenGLExtraFunctions *functions, const QOpenGLFramebufferObject &framebuffer, const QImage &image,
                     const QPoint &place)
{
    if (!QRect({}, framebuffer.size()).contains(QRect(place, image.size())))
        return false;
    functions->glBindTexture(GL_TEXTURE_2D, framebuffer.texture());
    functions->glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    // A QImage over somebody else's memory may have longer rows than its width says.
    functions->glPixelStorei(GL_UNPACK_ROW_LENGTH, GLint(image.bytesPerLine() / kBytesPerPixel));
    clearErrors(functions);
    functions->glTexSubImage2D(GL_TEXTURE_2D, 0, place.x(), place.y(), image.width(), image.height(), GL_RGBA,
                               GL_UNSIGNED_BYTE, image.constBits());
    const GLenum error = functions->glGetError();
    functions->glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    functions->glBindTexture(GL_TEXTURE_2D, 0);
    if (error != GL_NO_ERROR)
        qCWarning(lcTexture) << "Upload of a picture failed" << image.size() << Qt::hex << error;
    return error == GL_NO_ERROR;
}

void setTextureEdge(QOpenGLExtraFunctions *functions, GLuint texture, TextureEdge edge)
{
    functions->glBindTexture(GL_TEXTURE_2D, texture);
    setSampling(functions, edge);
    functions->glBindTexture(GL_TEXTURE_2D, 0);
}

std::unique_ptr<QOpenGLFramebufferObject> createFramebuffer(QOpenGLExtraFunctions *functions, const QSize &size,
                                                            TextureEdge edge, bool keepsRedOnly)
{
    QOpenGLFramebufferObjectFormat format;
    format.setAttachment(QOpenGLFramebufferObject::NoAttachment);
    format.setTextureTarget(GL_TEXTURE_2D);
    format.setInternalTextureFormat(keepsRedOnly ? GL_R8 : GL_RGBA8);
    auto framebuffer = std::make_unique<QOpenGLFramebufferObject>(size, format);
    if (!framebuffer->isValid()) {
        qCWarning(lcTexture) << "Framebuffer refused" << size;
        return nullptr;
    }
    functions->glBindTexture(GL_TEXTURE_2D, framebuffer->texture());
    setSampling(functions, edge);
    if (keepsRedOnly) {
        functions->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_G, GL_RED);
        functions->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_B, GL_RED);
        functions->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_A, GL_ONE);
    }
    functions->glBindTexture(GL_TEXTURE_2D, 0);
    return framebuffer;
}

QImage readFramebuffer(QOpenGLExtraFunctions *functions, const QOpenGLFramebufferObject &framebuffer)
{
    // QOpenGLFramebufferObject::toImage(false) gives the same bytes tagged as premultiplied, which shaders do not
    // write, and in ARGB order on the desktop. Reading into the wanted format saves re-tagging and a conversion of
    // every pixel.
    QImage image(framebuffer.size(), QImage::Format_RGBA8888);
    if (image.isNull())
        return {};
    functions->glBindFramebuffer(GL_FRAMEBUFFER, framebuffer.handle());
    functions->glPixelStorei(GL_PACK_ALIGNMENT, 1);
    clearErrors(functions);
    functions->glReadPixels(0, 0, image.width(), image.height(), GL_RGBA, GL_UNSIGNED_BYTE, image.bits());
    const GLenum error = functions->glGetError();
    functions->glBindFramebuffer(GL_FRAMEBUFFER, 0);
    if (error != GL_NO_ERROR) {
        qCWarning(lcTexture) << "Reading back a picture failed" << image.size() << Qt::hex << error;
        return {};
    }
    return image;
}

} // namespace zm
