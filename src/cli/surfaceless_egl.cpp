// Gives Qt's eglfs platform a display that needs no screen and no device, so that OpenGL works on a bare server.

#include <private/qeglfsdeviceintegration_p.h>

#include <EGL/egl.h>
#include <EGL/eglext.h>

namespace zm::cli {

/// Everything is drawn into pbuffers and framebuffer objects of a display of EGL_MESA_platform_surfaceless.
class SurfacelessEglIntegration : public QEglFSDeviceIntegration
{
public:
    void platformInit() override {}
    EGLNativeDisplayType platformDisplay() const override { return EGL_DEFAULT_DISPLAY; }
    EGLDisplay createDisplay(EGLNativeDisplayType) override
    {
        return eglGetPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, nullptr, nullptr);
    }
    EGLint surfaceType() const override { return EGL_PBUFFER_BIT; }
    QByteArray fbDeviceName() const override { return {}; }
    QSize screenSize() const override { return {1024, 768}; }
    QSizeF physicalScreenSize() const override { return {271.0, 203.0}; } // millimetres at 96 dots an inch
    int screenDepth() const override { return 32; }
    bool hasCapability(QPlatformIntegration::Capability) const override { return false; }
};

class SurfacelessEglPlugin : public QEglFSDeviceIntegrationPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QEglFSDeviceIntegrationFactoryInterface_iid FILE "surfaceless_egl.json")

public:
    QEglFSDeviceIntegration *create() override { return new SurfacelessEglIntegration; }
};

} // namespace zm::cli

#include "surfaceless_egl.moc"
