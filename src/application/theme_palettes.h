#pragma once

#include <QPalette>

namespace zm {

/// The palette of the dark theme: a copy of the system's with the roles of the theme replaced. The accent is the
/// system's highlight colour, made lighter where it is too dark to stand out.
QPalette darkThemePalette(const QPalette &systemPalette);

/// The palette of the light theme; the accent is made darker where it is too light.
QPalette lightThemePalette(const QPalette &systemPalette);

} // namespace zm
