#pragma once

#include <QtGlobal>

#include <memory>

class QOffscreenSurface;
class QOpenGLContext;
class QOpenGLExtraFunctions;

namespace zm {

/// A private OpenGL 3.3 core context with a surface of its own, shared with no window and made at first use. Lives on
/// one thread; nothing stays current between two operations.
class OffscreenContext
{
public:
    OffscreenContext();
    ~OffscreenContext();
    Q_DISABLE_COPY_MOVE(OffscreenContext)

    /// True when the context exists, after making it if need be. A failure is tried again by the next call.
    bool ensureContext();

    bool makeCurrent();
    void doneCurrent();

    bool exists() const { return m_functions != nullptr; }

    /// Both only while the context exists.
    const QOpenGLContext &context() const { return *m_context; }
    QOpenGLExtraFunctions *functions() const { return m_functions; }

    /// The longest side of a texture in pixels, asked of the driver once; 0 without a context.
    int maximumTextureSize();

private:
    bool refuse(const char *reason);

    std::unique_ptr<QOpenGLContext> m_context;
    std::unique_ptr<QOffscreenSurface> m_surface;
    QOpenGLExtraFunctions *m_functions = nullptr;
    int m_maximumTextureSize = 0;
    bool m_refusalReported = false;
};

/// Keeps a context current for one operation; false when there is no context or it refuses to become current.
class CurrentContext
{
public:
    explicit CurrentContext(OffscreenContext &context)
        : m_context(context)
        , m_isCurrent(context.ensureContext() && context.makeCurrent())
    {
    }
    ~CurrentContext()
    {
        if (m_isCurrent)
            m_context.doneCurrent();
    }
    Q_DISABLE_COPY_MOVE(CurrentContext)

    explicit operator bool() const { return m_isCurrent; }

private:
    OffscreenContext &m_context;
    const bool m_isCurrent;
};

} // namespace zm
