#include "document/image_layer.h"

#include <QPainter>
#include <QSvgRenderer>

#include <cmath>

namespace zm {

namespace {

QPointF clampedInto(const QSizeF &size, const QPointF &point)
{
    const auto clampAxis = [](double value, double length) {
        return std::isnan(value) ? 0.0 : std::clamp(value, 0.0, length);
    };
    return {clampAxis(point.x(), size.width()), clampAxis(point.y(), size.height())};
}

} // namespace

std::optional<EditablePath> normalizedRasterSelection(const std::optional<EditablePath> &selection,
                                                      const QSizeF &layerSize)
{
    if (!selection || layerSize.isEmpty())
        return std::nullopt;
    EditablePath path = withoutEmptyContours(*selection);
    if (path.contours.isEmpty())
        return std::nullopt;
    path.fillRule = Qt::OddEvenFill;
    for (EditablePathContour &contour : path.contours) {
        for (EditablePathNode &node : contour.nodes) {
            node.anchor = clampedInto(layerSize, node.anchor);
            if (node.hasInControl)
                node.inControl = clampedInto(layerSize, node.inControl);
            if (node.hasOutControl)
                node.outControl = clampedInto(layerSize, node.outControl);
        }
    }
    return cleanedPath(std::move(path));
}

ImageLayer::ImageLayer(const QImage &image, const QString &name, const QUuid &id)
    : ImageLayer(ImageLayerSource(RasterImageSource{image}), name, id)
{
}

ImageLayer::ImageLayer(const ImageLayerSource &source, const QString &name, const QUuid &id)
    : Layer(name, id)
    , m_source(normalizedSource(source))
{
}

RenderedContent ImageLayer::renderContent(const RenderServices *) const
{
    if (const RasterImageSource *raster = rasterSource())
        return {raster->image, layerSize()};
    // An SVG may ask for any size; one that no raster may have is not drawn.
    QImage image = transparentContentImage(layerSize());
    if (image.isNull())
        return {image, layerSize()};
    QSvgRenderer renderer;
    renderer.setAnimationEnabled(false);
    if (renderer.load(svgSource()->data) && renderer.isValid()) {
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        renderer.render(&painter, QRectF(QPointF(), layerSize()));
    }
    return {image, layerSize()};
}

QImage ImageLayer::rasterImage() const
{
    if (const RasterImageSource *raster = rasterSource())
        return raster->image;
    const std::optional<RenderedContent> cached = cachedContent();
    return cached ? cached->image : renderedContent(nullptr).image;
}

bool ImageLayer::setSource(const ImageLayerSource &source)
{
    ImageLayerSource normalized = normalizedSource(source);
    if (sameSource(m_source, normalized))
        return false;
    m_source = std::move(normalized);
    markContentChanged();
    return true;
}

bool ImageLayer::setRasterImage(const QImage &image)
{
    return setSource(RasterImageSource{image});
}

bool ImageLayer::setRasterSelection(const std::optional<EditablePath> &selection)
{
    std::optional<EditablePath> normalized = normalizedRasterSelection(selection, layerSize());
    if (m_rasterSelection == normalized)
        return false;
    m_rasterSelection = std::move(normalized);
    bumpRevision();
    return true;
}

bool ImageLayer::setRasterSurfacePolicy(RasterSurfacePolicy policy)
{
    if (m_rasterSurfacePolicy == policy)
        return false;
    m_rasterSurfacePolicy = policy;
    bumpRevision();
    return true;
}

qint64 ImageLayer::memoryBytes() const
{
    return Layer::memoryBytes() + zm::memoryBytes(m_source)
        + (m_rasterSelection ? zm::memoryBytes(*m_rasterSelection) : 0);
}

} // namespace zm
