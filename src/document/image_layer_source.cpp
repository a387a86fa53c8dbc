#include "document/image_layer_source.h"

#include "base/fuzzy.h"
#include "base/pixel_limits.h"
#include "base/sanitize.h"

#include <QSvgRenderer>

namespace zm {

ImageLayerSource normalizedSource(ImageLayerSource source)
{
    if (auto *raster = std::get_if<RasterImageSource>(&source)) {
        if (!raster->image.isNull() && raster->image.format() != QImage::Format_RGBA8888)
            raster->image = std::move(raster->image).convertToFormat(QImage::Format_RGBA8888);
        raster->image.setDevicePixelRatio(1.0); // readers set it for names such as "a@2x.png"; a pixel is a pixel here
    } else {
        auto &svg = std::get<SvgImageSource>(source);
        svg.size = sizeOfAtLeastOne(svg.size);
    }
    return source;
}

bool sameSource(const ImageLayerSource &a, const ImageLayerSource &b)
{
    if (a.index() != b.index())
        return false;
    if (const auto *raster = std::get_if<RasterImageSource>(&a))
        return raster->image == std::get<RasterImageSource>(b).image;
    const auto &first = std::get<SvgImageSource>(a);
    const auto &second = std::get<SvgImageSource>(b);
    return first.data == second.data && fuzzyEqual(first.size, second.size);
}

QSizeF logicalSize(const ImageLayerSource &source)
{
    if (const auto *raster = std::get_if<RasterImageSource>(&source))
        return raster->image.size();
    return std::get<SvgImageSource>(source).size;
}

QSize pixelSize(const ImageLayerSource &source)
{
    if (const auto *raster = std::get_if<RasterImageSource>(&source))
        return raster->image.size();
    return coveringPixels(sizeOfAtLeastOne(std::get<SvgImageSource>(source).size));
}

qint64 memoryBytes(const ImageLayerSource &source)
{
    if (const auto *raster = std::get_if<RasterImageSource>(&source))
        return raster->image.sizeInBytes();
    return std::get<SvgImageSource>(source).data.size();
}

std::optional<QSizeF> svgDefaultSize(const QByteArray &data)
{
    QSvgRenderer renderer;
    renderer.setAnimationEnabled(false);
    if (!renderer.load(data) || !renderer.isValid())
        return std::nullopt;
    const QSize defaultSize = renderer.defaultSize();
    if (!defaultSize.isEmpty())
        return QSizeF(defaultSize);
    const QRectF viewBox = renderer.viewBoxF();
    if (!viewBox.isEmpty())
        return viewBox.size();
    return std::nullopt;
}

std::optional<SvgImageSource> svgSourceFromData(const QByteArray &data, const QSizeF &size)
{
    if (data.isEmpty())
        return std::nullopt;
    const std::optional<QSizeF> defaultSize = svgDefaultSize(data);
    if (!defaultSize)
        return std::nullopt;
    return SvgImageSource{data, sizeOfAtLeastOne(size.isEmpty() ? *defaultSize : size)};
}

} // namespace zm
