#include "cli/platform.h"

#include <QByteArrayList>

#ifdef ZELMORA_SURFACELESS_EGL
#include <QtPlugin>

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

Q_IMPORT_PLUGIN(SurfacelessEglPlugin)
#endif

namespace zm::cli {

#ifdef ZELMORA_SURFACELESS_EGL
namespace {

/// Somebody listens on the display that the environment names. A display of another machine is taken at its word.
bool hasReachableDisplay()
{
    const QByteArray display = qgetenv("DISPLAY");
    const qsizetype colon = display.lastIndexOf(':');
    if (colon < 0)
        return false;
    if (const QByteArray host = display.first(colon); !host.isEmpty() && host != "unix")
        return true;
    const QByteArray path = "/tmp/.X11-unix/X" + display.sliced(colon + 1).split('.').first();
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= qsizetype(sizeof address.sun_path))
        return false;
    std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
    const int connection = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool answered =
        connection >= 0 && connect(connection, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    if (connection >= 0)
        close(connection);
    return answered;
}

/// eglfs ends the program when it gets no display, so it is asked for only when there is one.
bool hasSurfacelessDisplay()
{
    qputenv("EGL_LOG_LEVEL", "fatal");
    const char *extensions = eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS);
    if (!extensions || !std::strstr(extensions, "EGL_MESA_platform_surfaceless"))
        return false;
    const EGLDisplay display = eglGetPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, nullptr, nullptr);
    return display != EGL_NO_DISPLAY && eglInitialize(display, nullptr, nullptr);
}

} // namespace
#endif

void choosePlatform([[maybe_unused]] bool mayUseOpenGL)
{
    const QByteArray wished = qgetenv("QT_QPA_PLATFORM").split(':').first();
    if (wished == "offscreen" || wished == "minimal" || wished == "eglfs")
        return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
#ifdef ZELMORA_SURFACELESS_EGL
    if (mayUseOpenGL && !hasReachableDisplay() && hasSurfacelessDisplay()) {
        qputenv("QT_QPA_PLATFORM", "eglfs");
        qputenv("QT_QPA_EGLFS_INTEGRATION", "zelmora_surfaceless");
        qputenv("QT_QPA_EGLFS_DISABLE_INPUT", "1");
    }
#endif
}

} // namespace zm::cli
