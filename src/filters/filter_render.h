#pragma once

#include "filters/library_uniform_block.h"
#include "rendering/filter_utility_renderer.h"
#include "services/render_services.h"
#include "values/parameter_values.h"

#include <QImage>
#include <QRectF>

#include <optional>

namespace zm {

/// A filtered picture and the rectangle, in layer units, that it covers: larger than the layer when a filter grew it.
struct FilterRenderResult
{
    QImage image;
    QRectF bounds;
};

/// How many pixels of the picture stand for one unit of the layer: the smaller of the two axes, at least 0.01; 1 for
/// empty bounds.
double renderScale(const QSize &imageSize, const QRectF &bounds);

/// What a library filter is given to render, and the helpers that all of them need.
struct FilterRenderRequest
{
    QImage image; ///< RGBA8888, straight alpha
    QRectF bounds; ///< what the picture covers, in layer units
    ParameterValues parameters; ///< complete: the instance's values over the filter's defaults
    RenderServices services;
    FilterUtilityRenderer *renderer = nullptr; ///< never null in render()
    int inputFormat = 0;
    int outputFormat = 0;
    /// The layer's own rectangle, in layer units, where there is one. The bounds leave it when an earlier filter has
    /// grown the picture.
    std::optional<QRectF> canvas;

    QSize size() const { return image.size(); }
    double renderScale() const { return zm::renderScale(image.size(), bounds); }
    /// The layer's own rectangle in layer units, of which placed values are fractions.
    QRectF layerBox() const { return canvas.value_or(bounds); }
    /// A point in fractions of that rectangle as pixels of the picture.
    QPointF placeInLayer(double x, double y) const;

    double number(const QString &key, double fallback) const { return parameters.number(key, fallback); }
    /// A value of 0..100 as a fraction.
    double percent(const QString &key, double fallback) const { return number(key, fallback) / 100.0; }
    /// A length in layer units as pixels of the picture.
    double pixels(const QString &key, double fallback) const { return number(key, fallback) * renderScale(); }
    /// A length in thousandths of the picture's diagonal as pixels: for patterns that look alike on pictures of all
    /// sizes.
    double diagonalPixels(const QString &key, double fallback) const;
    /// The index of the chosen option among `options`; 0 for any other text.
    int choice(const QString &key, std::initializer_list<QLatin1StringView> options) const;

    /// The picture and the bounds as they came.
    FilterRenderResult unchanged() const { return {image, bounds}; }
    /// A picture of the same bounds; a null one, from a renderer that failed, leaves the input.
    FilterRenderResult result(const QImage &rendered) const { return {rendered.isNull() ? image : rendered, bounds}; }
    /// One pass of the block's shader over the picture.
    FilterRenderResult singlePass(const LibraryUniformBlock &block) const;
    /// What a chain makes of it.
    FilterRenderResult chained(const PassChain &chain, PassChain::Picture picture) const;
};

/// A pass of the block's shader in a chain; the picture has the size of the first input.
PassChain::Picture addPass(PassChain &chain, const LibraryUniformBlock &block, const QList<PassChain::Picture> &inputs);

} // namespace zm
