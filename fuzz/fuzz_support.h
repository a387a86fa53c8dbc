#pragma once

class QGuiApplication;

namespace zm::fuzz {

/// Fonts and pictures need an application; this one needs no display. It lives as long as the process, and messages of
/// libraries about damaged input are not printed.
QGuiApplication &application();

/// Ends the process as a finding when a promise is broken.
void require(bool kept, const char *promise);

} // namespace zm::fuzz
