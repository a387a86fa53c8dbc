#pragma once

#include "rendering/filter_pass_drawer.h"
#include "rendering/filter_utility_renderer.h"
#include "rendering/offscreen_context.h"
#include "rendering/pixel_drift_renderer.h"
#include "rendering/shader_texture_renderer.h"

#include <functional>

namespace zm {

/// The one object that draws on the GPU outside the window. Every operation takes pictures, runs its passes on a
/// private context and gives pictures back; between two of them only programs stay on the GPU. Used on the thread that
/// created it, which it blocks for as long as a pass runs.
class OpenGLTextureRenderer final : public ShaderTextureRenderer, public FilterUtilityRenderer
{
public:
    /// The catalogue outlives the renderer.
    explicit OpenGLTextureRenderer(const FilterShaderCatalog &catalog = FilterShaderCatalog::instance());
    ~OpenGLTextureRenderer() override;
    Q_DISABLE_COPY_MOVE(OpenGLTextureRenderer)

    int maximumTextureSize() override;

    QImage colorize(const QImage &image, const QColor &color, double opacity) override;
    QImage colorAdjust(const QImage &image, const ColorAdjustment &adjustment) override;
    QImage addNoise(const QImage &image, const NoiseSettings &noise) override;
    QImage grayscale(const QImage &image, const GrayscaleLevels &levels) override;
    QImage toneMap(const QImage &image, const ToneMapColors &colors, double amount) override;
    QImage highlightsToAlpha(const QImage &image, const HighlightsToAlphaSettings &settings) override;
    QImage fadeOut(const QImage &image, const FadeOutSettings &settings) override;
    QImage waterReflection(const QImage &image, const WaterReflectionSettings &settings) override;
    QImage boxBlur(const QImage &image, double radius) override;
    QImage gaussianBlur(const QImage &image, double sigma) override;
    QImage pixelate(const QImage &image, double blockSize) override;
    QImage sobel(const QImage &image, const EdgeDetection &edges) override;
    QImage innerShadow(const QImage &image, const QRectF &region, double reach, double strength,
                       const QColor &tint) override;
    QImage softBevel(const QImage &image, const QRectF &region, double width, double strength) override;
    QImage raise(const QImage &image, const QRectF &region, double bevelSize) override;
    QImage renderFilterShader(const QString &shaderId, const QSize &outputSize, const QList<QImage> &images,
                              const QByteArray &uniformBytes, const FilterTextureFormats &formats) override;
    QImage renderPixelDrift(const QImage &image, const PixelDriftSettings &settings) override;
    QImage renderMaskedBlurFilterShader(const QString &shaderId, const QImage &source, double sourceSigma,
                                        const QImage &mask, double maskSigma, const QByteArray &uniformBytes,
                                        const FilterTextureFormats &formats) override;
    QImage renderChain(const PassChain &chain, PassChain::Picture result) override;
    quint64 failureCount() const override { return m_failures; }

private:
    /// A chain of one operation on one picture.
    template<typename Operation, typename... Arguments>
    QImage single(Operation operation, const QImage &image, const Arguments &...arguments)
    {
        PassChain chain;
        return renderChain(chain, std::invoke(operation, chain, chain.source(image), arguments...));
    }

    quint64 m_failures = 0;
    const FilterShaderCatalog &m_catalog;
    OffscreenContext m_context;
    FilterPassDrawer m_passes; // after the context, on which its programs live
    PixelDriftRenderer m_pixelDrift;
};

} // namespace zm
