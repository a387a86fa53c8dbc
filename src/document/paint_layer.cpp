#include "document/paint_layer.h"

#include "base/pixel_limits.h"

#include <QCoreApplication>

#include <cmath>

namespace zm {

namespace {

// Document units on each side, so that the first strokes beyond the view need no larger surface.
constexpr double kRoomForStrokes = 128.0;

bool isUsable(const QRectF &rect)
{
    // NaN fails the comparisons.
    return std::isfinite(rect.x()) && std::isfinite(rect.y()) && rect.width() >= 1.0 && rect.height() >= 1.0
        && std::isfinite(rect.width()) && std::isfinite(rect.height());
}

} // namespace

std::optional<QRectF> initialPaintSurface(const QRectF &viewport, const QRectF &documentRect)
{
    QRectF rect = viewport.isEmpty() ? documentRect : viewport;
    if (!isUsable(rect))
        return std::nullopt;
    if (rect.intersects(documentRect))
        rect |= documentRect;
    rect.adjust(-kRoomForStrokes, -kRoomForStrokes, kRoomForStrokes, kRoomForStrokes);
    const QPointF topLeft(std::floor(rect.left()), std::floor(rect.top()));
    const QPointF bottomRight(std::max(std::ceil(rect.right()), topLeft.x() + 1.0),
                              std::max(std::ceil(rect.bottom()), topLeft.y() + 1.0));
    return QRectF(topLeft, bottomRight);
}

std::unique_ptr<ImageLayer> makePaintLayer(const QRectF &surface)
{
    if (surface.width() * surface.height() > double(kMaximumRasterPixels))
        return nullptr;
    const QSize size = surface.size().toSize();
    if (!isAllocatableRasterSize(size))
        return nullptr;
    QImage image(size, QImage::Format_RGBA8888);
    if (image.isNull())
        return nullptr;
    image.fill(Qt::transparent);
    auto layer = std::make_unique<ImageLayer>(image, QCoreApplication::translate("zm::ImageLayer", "Paint"));
    ObjectTransform transform;
    transform.setPosition(surface.topLeft());
    layer->setTransform(transform);
    layer->setRasterSurfacePolicy(RasterSurfacePolicy::Expanding);
    return layer;
}

} // namespace zm
