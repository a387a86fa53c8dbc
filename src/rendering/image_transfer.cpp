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

void OwnedTexture::reset()
{
    if (m_name != 0)
        m_functions->glDeleteTextures(1, &m_name);
    m_name = 0;
}

OwnedTexture uploadTexture(QOpenGLExtraFunctions *functions, const QImage &image, TextureEdge edge)
{
    if (image.isNull())
        return {};
    GLint maximumSide = 0;
    functions->glGetIntegerv(GL_MAX_TEXTURE_SIZE, &maximumSide);
    if (std::max(image.width(), image.height()) > maximumSide) {
        qCWarning(lcTexture) << "Picture exceeds the texture limit" << image.size() << maximumSide;
        return {};
    }

    GLuint name = 0;
    functions->glGenTextures(1, &name);
    OwnedTexture texture(functions, name);
    functions->glBindTexture(GL_TEXTURE_2D, name);
    setSampling(functions, edge);
    functions->glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    // A QImage over somebody else's memory may have longer rows than its width says.
    functions->glPixelStorei(GL_UNPACK_ROW_LENGTH, GLint(image.bytesPerLine() / kBytesPerPixel));
    clearErrors(functions);
    functions->glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, image.width(), image.height(), 0, GL_RGBA, GL_UNSIGNED_BYTE,
                            image.constBits());
    const GLenum error = functions->glGetError();
    functions->glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    functions->glBindTexture(GL_TEXTURE_2D, 0);
    if (error != GL_NO_ERROR) {
        qCWarning(lcTexture) << "Upload of a picture failed" << image.size() << Qt::hex << error;
        return {};
    }
    return texture;
}

std::unique_ptr<QOpenGLFramebufferObject> createFramebuffer(QOpenGLExtraFunctions *functions, const QSize &size,
                                                            TextureEdge edge)
{
    QOpenGLFramebufferObjectFormat format;
    format.setAttachment(QOpenGLFramebufferObject::NoAttachment);
    format.setTextureTarget(GL_TEXTURE_2D);
    format.setInternalTextureFormat(GL_RGBA8);
    auto framebuffer = std::make_unique<QOpenGLFramebufferObject>(size, format);
    if (!framebuffer->isValid()) {
        qCWarning(lcTexture) << "Framebuffer refused" << size;
        return nullptr;
    }
    functions->glBindTexture(GL_TEXTURE_2D, framebuffer->texture());
    setSampling(functions, edge);
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
