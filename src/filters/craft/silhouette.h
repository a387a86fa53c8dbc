#pragma once

#include <QImage>
#include <QPointF>

namespace zm {

/// The alpha of a picture at a reduced size with room around it, as a base for soft shadows.
struct Silhouette
{
    QImage image; ///< RGBA8888, straight alpha, of one colour throughout
    int reduction = 1; ///< pixels of the picture for one of the silhouette
    int margin = 0; ///< room on each side, in pixels of the silhouette

    /// Where its top-left corner lies, in pixels of the picture.
    QPointF origin() const { return QPointF(-margin, -margin) * reduction; }
    /// What it covers, in pixels of the picture.
    QRectF area() const { return {origin(), QSizeF(image.size()) * reduction}; }
};

/// The silhouette of an RGBA8888 picture, reduced as far as a blur of `sigma` pixels does not show, with room for that
/// blur. Inverted it is solid around the picture.
Silhouette silhouette(const QImage &picture, double sigma, const QColor &color, bool inverted = false);

} // namespace zm
