#pragma once

#include <QImage>
#include <QRectF>
#include <QTransform>

#include <optional>

namespace zm {

/// How a picture is cut: the size of what is left, and the matrices between its pixels and those of the picture.
struct ImageCrop
{
    QSize size;
    QTransform toImage;
    QTransform fromImage;

    /// Every pixel of a picture of this size stays where it is.
    bool keepsAll(const QSize &imageSize) const { return size == imageSize && toImage.isIdentity(); }
};

/// The crop of a picture to the part of the rectangle that lies in it, turned about that part's centre by an angle in
/// degrees. Pixels of the picture. Nothing when less than one pixel either way is left, for numbers that are not
/// finite, and for more pixels than a raster may have.
std::optional<ImageCrop> imageCrop(const QSize &imageSize, const QRectF &rectangle, double rotation);

/// The cut pixels in RGBA8888, transparent where the turned rectangle leaves the picture. A crop that leaves all in its
/// place gives the picture itself. Null when memory runs out.
QImage croppedImage(const QImage &image, const ImageCrop &crop);

} // namespace zm
