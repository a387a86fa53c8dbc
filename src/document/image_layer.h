#pragma once

#include "document/image_layer_source.h"
#include "document/layer.h"
#include "values/editable_path.h"

namespace zm {

/// How painting may change the pixel surface of a layer. Expanding marks a paint layer, whose surface grows as strokes
/// leave it.
enum class RasterSurfacePolicy : qint32 { Fixed = 0, Expanding = 1 };

/// The raster selection as an image layer of that size keeps it, in layer-local pixels: odd-even, without contours that
/// have no node, clamped into the layer, and as cleanedPath() tells. Nothing when no node is left or the layer is
/// empty.
std::optional<EditablePath> normalizedRasterSelection(const std::optional<EditablePath> &selection,
                                                      const QSizeF &layerSize);

/// A layer that holds pixels or an SVG picture.
class ImageLayer : public Layer
{
public:
    ImageLayer(const QImage &image, const QString &name, const QUuid &id = {});
    ImageLayer(const ImageLayerSource &source, const QString &name, const QUuid &id = {});

    LayerType layerType() const override { return LayerType::Image; }
    /// A raster's own pixels, not copied; an SVG drawn at its logical resolution. Transparent for an SVG that does not
    /// load, and null for one whose size is beyond what a raster may have.
    RenderedContent renderContent(const RenderServices *services) const override;

    const ImageLayerSource &source() const { return m_source; }
    bool isRaster() const { return rasterSource() != nullptr; }
    /// Null for an SVG.
    const RasterImageSource *rasterSource() const { return std::get_if<RasterImageSource>(&m_source); }
    /// Null for a raster.
    const SvgImageSource *svgSource() const { return std::get_if<SvgImageSource>(&m_source); }
    /// The stored pixels, or an SVG as drawn.
    QImage rasterImage() const;
    QSizeF layerSize() const { return logicalSize(m_source); }
    QSize pixelSize() const { return zm::pixelSize(m_source); }

    const std::optional<EditablePath> &rasterSelection() const { return m_rasterSelection; }
    bool hasRasterSelection() const { return m_rasterSelection.has_value(); }
    RasterSurfacePolicy rasterSurfacePolicy() const { return m_rasterSurfacePolicy; }

    // Setters return whether something changed.
    bool setSource(const ImageLayerSource &source);
    bool setRasterImage(const QImage &image);
    /// Normalises as normalizedRasterSelection() tells.
    bool setRasterSelection(const std::optional<EditablePath> &selection);
    bool setRasterSurfacePolicy(RasterSurfacePolicy policy);

    qint64 memoryBytes() const override;

private:
    ImageLayerSource m_source;
    std::optional<EditablePath> m_rasterSelection;
    RasterSurfacePolicy m_rasterSurfacePolicy = RasterSurfacePolicy::Fixed;
};

} // namespace zm
