#pragma once

#include <QImage>

namespace zm {

/// The picture as a lens out of focus draws it: every point becomes a disc of `radius` pixels, in light instead of
/// encoded colour, and near white counts for the far brighter lamp that it mostly is. So lamps grow into discs, where a
/// Gaussian lets them fade; even surfaces keep their colour. RGBA8888 with straight alpha, at a reduced size that
/// covers the same picture: for shaders that read it with linear filtering. Under half a pixel the picture comes back.
QImage lensBlurred(const QImage &image, double radius);

} // namespace zm
