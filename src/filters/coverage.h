#pragma once

#include <QImage>

namespace zm {

/// Multiplies the alpha of an RGBA8888 picture by that of a mask of the same size, or by its inverse. Colours stay, so
/// that a filter after this one finds them.
void multiplyAlpha(QImage &image, const QImage &mask, bool inverted = false);

} // namespace zm
