#pragma once

#include <QImage>

namespace zm {

/// Multiplies the alpha of an RGBA8888 picture by that of a mask of the same size, or by its inverse. Colours stay, so
/// that a filter after this one finds them.
void multiplyAlpha(QImage &image, const QImage &mask, bool inverted = false);

/// The same by a smaller Format_Grayscale8 mask, enlarged smoothly and made `steeper` times as steep around one half,
/// so that its edges are as crisp as the picture.
void multiplyAlphaEnlarged(QImage &image, const QImage &mask, double steeper);

/// Whether any pixel of an RGBA8888 picture is not opaque.
bool hasTransparency(const QImage &image);

/// Replaces the alpha of an RGBA8888 picture by that of another one of the same size.
void copyAlpha(QImage &image, const QImage &from);

} // namespace zm
