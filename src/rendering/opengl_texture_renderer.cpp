#include "rendering/opengl_texture_renderer.h"

#include "rendering/pass_chain_runner.h"
#include "rendering/rendering_log.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr qsizetype kMaskedBlurSamplers = 3;

double sigmaOrZero(double sigma)
{
    return std::isfinite(sigma) ? std::max(sigma, 0.0) : 0.0;
}

} // namespace

OpenGLTextureRenderer::OpenGLTextureRenderer(const FilterShaderCatalog &catalog)
    : m_catalog(catalog)
    , m_passes(m_context, catalog)
    , m_pixelDrift(m_passes, m_context)
{
}

OpenGLTextureRenderer::~OpenGLTextureRenderer() = default;

int OpenGLTextureRenderer::maximumTextureSize()
{
    return m_context.maximumTextureSize();
}

QImage OpenGLTextureRenderer::colorize(const QImage &image, const QColor &color, double opacity)
{
    return single(&PassChain::colorize, image, color, opacity);
}

QImage OpenGLTextureRenderer::colorAdjust(const QImage &image, const ColorAdjustment &adjustment)
{
    return single(&PassChain::colorAdjust, image, adjustment);
}

QImage OpenGLTextureRenderer::addNoise(const QImage &image, const NoiseSettings &noise)
{
    return single(&PassChain::addNoise, image, noise);
}

QImage OpenGLTextureRenderer::grayscale(const QImage &image, const GrayscaleLevels &levels)
{
    return single(&PassChain::grayscale, image, levels);
}

QImage OpenGLTextureRenderer::toneMap(const QImage &image, const ToneMapColors &colors, double amount)
{
    return single(&PassChain::toneMap, image, colors, amount);
}

QImage OpenGLTextureRenderer::highlightsToAlpha(const QImage &image, const HighlightsToAlphaSettings &settings)
{
    return single(&PassChain::highlightsToAlpha, image, settings);
}

QImage OpenGLTextureRenderer::fadeOut(const QImage &image, const FadeOutSettings &settings)
{
    return single(&PassChain::fadeOut, image, settings);
}

QImage OpenGLTextureRenderer::waterReflection(const QImage &image, const WaterReflectionSettings &settings)
{
    return single(&PassChain::waterReflection, image, settings, maximumTextureSize());
}

QImage OpenGLTextureRenderer::boxBlur(const QImage &image, double radius)
{
    return single(&PassChain::boxBlur, image, radius);
}

QImage OpenGLTextureRenderer::gaussianBlur(const QImage &image, double sigma)
{
    return single(&PassChain::gaussianBlur, image, sigma);
}

QImage OpenGLTextureRenderer::pixelate(const QImage &image, double blockSize)
{
    return single(&PassChain::pixelate, image, blockSize);
}

QImage OpenGLTextureRenderer::sobel(const QImage &image, const EdgeDetection &edges)
{
    return single(&PassChain::sobel, image, edges);
}

QImage OpenGLTextureRenderer::innerShadow(const QImage &image, const QRectF &region, double reach, double strength,
                                          const QColor &tint)
{
    return single(&PassChain::innerShadow, image, region, reach, strength, tint);
}

QImage OpenGLTextureRenderer::softBevel(const QImage &image, const QRectF &region, double width, double strength)
{
    return single(&PassChain::softBevel, image, region, width, strength);
}

QImage OpenGLTextureRenderer::raise(const QImage &image, const QRectF &region, double bevelSize)
{
    return single(&PassChain::raise, image, region, bevelSize);
}

QImage OpenGLTextureRenderer::renderFilterShader(const QString &shaderId, const QSize &outputSize,
                                                 const QList<QImage> &images, const QByteArray &uniformBytes,
                                                 const FilterTextureFormats &)
{
    PassChain chain;
    QList<PassChain::Picture> inputs;
    for (const QImage &image : images)
        inputs.append(chain.source(image));
    return renderChain(chain, chain.libraryShader(shaderId, outputSize, inputs, uniformBytes));
}

QImage OpenGLTextureRenderer::renderPixelDrift(const QImage &image, const PixelDriftSettings &settings)
{
    const QImage picture = m_pixelDrift.render(image, settings);
    if (picture.isNull() && !image.isNull())
        ++m_failures;
    return picture;
}

QImage OpenGLTextureRenderer::renderMaskedBlurFilterShader(const QString &shaderId, const QImage &source,
                                                           double sourceSigma, const QImage &mask, double maskSigma,
                                                           const QByteArray &uniformBytes,
                                                           const FilterTextureFormats &formats)
{
    const FilterShaderDescriptor *descriptor = m_catalog.find(u"fx/%1"_s.arg(shaderId));
    if (!descriptor) {
        qCWarning(lcTexture) << "Unknown filter shader" << shaderId;
        ++m_failures;
        return {};
    }
    if (descriptor->samplers.size() != kMaskedBlurSamplers
        || uniformBytes.size() != descriptor->uniforms.size() * kUniformVec4Bytes) {
        qCWarning(lcTexture) << "Masked blur shader invocation mismatch" << shaderId << "samplers expected"
                             << descriptor->samplers.size() << "got 3 uniforms expected" << descriptor->uniforms.size()
                             << "got" << uniformBytes.size() / kUniformVec4Bytes;
        ++m_failures;
        return {};
    }
    const double usedSourceSigma = sigmaOrZero(sourceSigma);
    const double usedMaskSigma = sigmaOrZero(maskSigma);
    if (formats.inputFormat(0) != formats.inputFormat(1)) {
        // Pictures of two formats cannot share one chain of passes: each is blurred by itself.
        return renderFilterShader(shaderId, source.size(),
                                  {source, gaussianBlur(source, usedSourceSigma), gaussianBlur(mask, usedMaskSigma)},
                                  uniformBytes, formats);
    }
    PassChain chain;
    const PassChain::Picture sharp = chain.source(source);
    const PassChain::Picture soft = chain.reducedBlur(sharp, usedSourceSigma);
    const PassChain::Picture softMask = chain.reducedBlur(chain.source(mask, TextureEdge::TransparentBorder),
                                                          usedMaskSigma, TextureEdge::TransparentBorder);
    return renderChain(chain, chain.libraryShader(shaderId, source.size(), {sharp, soft, softMask}, uniformBytes));
}

QImage OpenGLTextureRenderer::renderChain(const PassChain &chain, PassChain::Picture result)
{
    const QImage picture = runPassChain(m_passes, m_context, chain, result);
    if (picture.isNull())
        ++m_failures;
    return picture;
}

} // namespace zm
