#pragma once

namespace zm::cli {

/// Picks the Qt platform of a program that shows nothing, before its QGuiApplication is made. Without OpenGL that is
/// "offscreen", which starts in a moment. With it, "offscreen" serves where an X display answers, and the surfaceless
/// EGL display of this program elsewhere, when it was built with one and EGL provides it. Of the user's QT_QPA_PLATFORM
/// only a platform without windows is kept: one that is meant for the desktop ends the process where no display is.
void choosePlatform(bool mayUseOpenGL);

} // namespace zm::cli
