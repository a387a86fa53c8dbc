#include "rendering/offscreen_context.h"

#include "rendering/rendering_log.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QSurfaceFormat>

namespace zm {

namespace {

/// Vertex arrays, uniform buffers and the GLSL of the shader packages need this much.
bool isSufficient(const QOpenGLContext &context)
{
    return context.format().version() >= (context.isOpenGLES() ? std::pair(3, 0) : std::pair(3, 3));
}

} // namespace

OffscreenContext::OffscreenContext() = default;

OffscreenContext::~OffscreenContext() = default;

bool OffscreenContext::ensureContext()
{
    if (exists())
        return true;

    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setDepthBufferSize(0);
    format.setStencilBufferSize(0);

    m_context = std::make_unique<QOpenGLContext>();
    m_context->setFormat(format);
    if (!m_context->create())
        return refuse("an OpenGL context was refused");
    if (!isSufficient(*m_context))
        return refuse("the OpenGL context is older than 3.3");

    m_surface = std::make_unique<QOffscreenSurface>();
    m_surface->setFormat(m_context->format());
    m_surface->create();
    if (!m_surface->isValid())
        return refuse("the offscreen surface is not valid");
    if (!makeCurrent())
        return refuse("the context could not be made current");
    m_functions = m_context->extraFunctions();
    m_functions->initializeOpenGLFunctions();
    doneCurrent();
    return true;
}

bool OffscreenContext::makeCurrent()
{
    return m_context && m_surface && m_context->makeCurrent(m_surface.get());
}

void OffscreenContext::doneCurrent()
{
    m_context->doneCurrent();
}

int OffscreenContext::maximumTextureSize()
{
    if (m_maximumTextureSize <= 0) {
        const CurrentContext current(*this);
        if (current)
            m_functions->glGetIntegerv(GL_MAX_TEXTURE_SIZE, &m_maximumTextureSize);
    }
    return m_maximumTextureSize;
}

bool OffscreenContext::refuse(const char *reason)
{
    // Every operation tries again, some of them many times a second: the log is told once.
    if (!m_refusalReported)
        qCWarning(lcTexture) << "No GPU rendering:" << reason;
    m_refusalReported = true;
    m_surface.reset();
    m_context.reset();
    return false;
}

} // namespace zm
