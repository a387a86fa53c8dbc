#pragma once

#include "rendering/filter_pass_drawer.h"
#include "rendering/filter_utility_renderer.h"
#include "rendering/offscreen_context.h"
#include "rendering/shader_texture_renderer.h"

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

    QImage boxBlur(const QImage &image, double radius) override;
    QImage gaussianBlur(const QImage &image, double sigma) override;
    QImage renderFilterShader(const QString &shaderId, const QSize &outputSize, const QList<QImage> &images,
                              const QByteArray &uniformBytes, const FilterTextureFormats &formats) override;
    QImage renderMaskedBlurFilterShader(const QString &shaderId, const QImage &source, double sourceSigma,
                                        const QImage &mask, double maskSigma, const QByteArray &uniformBytes,
                                        const FilterTextureFormats &formats) override;
    QImage renderChain(const PassChain &chain, PassChain::Picture result) override;

private:
    const FilterShaderCatalog &m_catalog;
    OffscreenContext m_context;
    FilterPassDrawer m_passes; // after the context, on which its programs live
};

} // namespace zm
