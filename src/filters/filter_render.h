#pragma once

#include "filters/library_uniform_block.h"
#include "rendering/filter_utility_renderer.h"
#include "services/render_services.h"
#include "values/parameter_definition.h"

#include <QImage>
#include <QLineF>
#include <QRectF>
#include <QtMath>

#include <cmath>
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

/// What a filter is given to render, and the helpers that all of them need.
struct FilterRenderRequest
{
    QImage image; ///< RGBA8888, straight alpha
    QRectF bounds; ///< what the picture covers, in layer units
    /// Complete, and of the kinds that the controls hold: the instance's values over the filter's defaults.
    ParameterValues parameters;
    QList<ParameterDefinition> controls; ///< of the filter
    RenderServices services;
    FilterUtilityRenderer *renderer = nullptr; ///< null only for a filter that needs none
    int inputFormat = 0;
    int outputFormat = 0;
    /// The layer's own rectangle, in layer units, where there is one. The bounds leave it when an earlier filter has
    /// grown the picture.
    std::optional<QRectF> canvas;

    QSize size() const { return image.size(); }
    /// Pixels.
    double diagonal() const { return std::hypot(image.width(), image.height()); }
    double renderScale() const { return zm::renderScale(image.size(), bounds); }
    /// The layer's own rectangle in layer units, of which placed values are fractions.
    QRectF layerBox() const { return canvas.value_or(bounds); }
    /// A point in fractions of that rectangle as pixels of the picture.
    QPointF placeInLayer(double x, double y) const;

    // What a control is set to. Defaults stand in the filter's description alone; a key that it lacks reads as nothing,
    // and a debug build stops at it, as it is a slip of the pen.

    double number(const QString &key) const { return parameters.number(known(key), 0.0); }
    /// A value of 0..100 as a fraction.
    double percent(const QString &key) const { return number(key) / 100.0; }
    /// A length in layer units as pixels of the picture.
    double pixels(const QString &key) const { return number(key) * renderScale(); }
    /// A length in thousandths of the picture's diagonal as pixels: for patterns that look alike on pictures of all
    /// sizes.
    double diagonalPixels(const QString &key) const { return number(key) * diagonal() / 1000.0; }
    /// An angle in degrees as radians.
    double radians(const QString &key) const { return qDegreesToRadians(number(key)); }
    bool flag(const QString &key) const { return parameters.boolean(known(key), false); }
    QColor color(const QString &key) const { return parameters.color(known(key), {}); }
    QString text(const QString &key) const { return parameters.string(known(key), {}); }
    /// The place of the chosen option in the control's list; 0 for a value that is none of them.
    int choice(const QString &key) const;
    MaskTransform maskTransform(const QString &key) const { return parameters.maskTransform(known(key), {}); }
    /// A gradient position as a line in pixels of the picture: from a place to an end, or from a centre to its rim.
    QLineF line(const QString &key) const;

    /// The picture and the bounds as they came.
    FilterRenderResult unchanged() const { return {image, bounds}; }
    /// A picture of the same bounds; a null one, from a renderer that failed, leaves the input.
    FilterRenderResult result(const QImage &rendered) const { return {rendered.isNull() ? image : rendered, bounds}; }
    /// One pass of the block's shader over the picture.
    FilterRenderResult singlePass(const LibraryUniformBlock &block) const;
    /// What a chain makes of it.
    FilterRenderResult chained(const PassChain &chain, PassChain::Picture picture) const;

private:
    QString known(const QString &key) const
    {
        Q_ASSERT_X(parameters.contains(key), "FilterRenderRequest", qPrintable(key));
        return key;
    }
};

/// A pass of the block's shader in a chain; the picture has the size of the first input.
PassChain::Picture addPass(PassChain &chain, const LibraryUniformBlock &block, const QList<PassChain::Picture> &inputs);

} // namespace zm
