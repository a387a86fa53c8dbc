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
{
}

OpenGLTextureRenderer::~OpenGLTextureRenderer() = default;

int OpenGLTextureRenderer::maximumTextureSize()
{
    return m_context.maximumTextureSize();
}

QImage OpenGLTextureRenderer::boxBlur(const QImage &image, double radius)
{
    PassChain chain;
    return renderChain(chain, chain.boxBlur(chain.source(image), radius));
}

QImage OpenGLTextureRenderer::gaussianBlur(const QImage &image, double sigma)
{
    PassChain chain;
    return renderChain(chain, chain.gaussianBlur(chain.source(image), sigma));
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

QImage OpenGLTextureRenderer::renderMaskedBlurFilterShader(const QString &shaderId, const QImage &source,
                                                           double sourceSigma, const QImage &mask, double maskSigma,
                                                           const QByteArray &uniformBytes,
                                                           const FilterTextureFormats &formats)
{
    const FilterShaderDescriptor *descriptor = m_catalog.find(u"fx/%1"_s.arg(shaderId));
    if (!descriptor) {
        qCWarning(lcTexture) << "Unknown filter shader" << shaderId;
        return {};
    }
    if (descriptor->samplers.size() != kMaskedBlurSamplers
        || uniformBytes.size() != descriptor->uniforms.size() * kUniformVec4Bytes) {
        qCWarning(lcTexture) << "Masked blur shader invocation mismatch" << shaderId << "samplers expected"
                             << descriptor->samplers.size() << "got 3 uniforms expected" << descriptor->uniforms.size()
                             << "got" << uniformBytes.size() / kUniformVec4Bytes;
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
    return runPassChain(m_passes, m_context, chain, result);
}

} // namespace zm
