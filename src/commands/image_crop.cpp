#include "commands/image_crop.h"

#include "base/pixel_limits.h"
#include "base/sanitize.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zm {

std::optional<ImageCrop> imageCrop(const QSize &imageSize, const QRectF &rectangle, double rotation)
{
    if (!isFinite(rectangle.topLeft()) || !isFinite(rectangle.bottomRight()) || !std::isfinite(rotation))
        return std::nullopt;
    const QRectF cut = rectangle.normalized().intersected(QRectF(QPointF(), QSizeF(imageSize)));
    if (cut.width() < 1.0 || cut.height() < 1.0)
        return std::nullopt;
    ImageCrop crop;
    crop.size = QSize(std::max(int(std::round(cut.width())), 1), std::max(int(std::round(cut.height())), 1));
    if (!isAllocatableRasterSize(crop.size))
        return std::nullopt;
    crop.toImage.translate(cut.center().x(), cut.center().y());
    crop.toImage.rotate(rotation, Qt::ZAxis);
    crop.toImage.scale(cut.width() / crop.size.width(), cut.height() / crop.size.height());
    crop.toImage.translate(-crop.size.width() / 2.0, -crop.size.height() / 2.0);
    bool invertible = false;
    crop.fromImage = crop.toImage.inverted(&invertible);
    return invertible ? std::optional(crop) : std::nullopt;
}

QImage croppedImage(const QImage &image, const ImageCrop &crop)
{
    if (crop.keepsAll(image.size()))
        return image;
    QImage cropped(crop.size, QImage::Format_RGBA8888);
    if (cropped.isNull())
        return cropped;
    cropped.fill(Qt::transparent);
    QPainter painter(&cropped);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setWorldTransform(crop.fromImage);
    painter.drawImage(QPointF(), image);
    return cropped;
}

} // namespace zm
