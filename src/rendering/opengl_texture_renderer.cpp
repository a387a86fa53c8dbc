#include "rendering/opengl_texture_renderer.h"

#include "rendering/image_transfer.h"
#include "rendering/multi_scale_blur.h"
#include "rendering/rendering_log.h"

#include <QOpenGLExtraFunctions>

#include <cmath>
#include <vector>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kMaximumBoxRadius = 16.0;
constexpr double kGaussianWorkingSigma = 10.0;
constexpr double kMaskedBlurWorkingSigma = 4.0; // the sampler of the last pass enlarges, so less is enough
constexpr qsizetype kMaskedBlurSamplers = 3;

double finiteOrZero(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

QString libraryShaderId(const QString &bareId)
{
    return u"fx/%1"_s.arg(bareId);
}

bool holdsUniforms(const QByteArray &bytes, const FilterShaderDescriptor &descriptor)
{
    return bytes.size() == descriptor.uniforms.size() * kUniformVec4Bytes;
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
    const QImage input = toStraightRgba(image);
    const double usedRadius = std::min(finiteOrZero(radius), kMaximumBoxRadius);
    if (usedRadius < kSmallestBlur || input.isNull())
        return input;

    const QString shaderId = u"boxBlur"_s;
    const CurrentContext current(m_context);
    if (!current || !m_passes.filterProgram(shaderId))
        return {};
    OwnedTexture texture = uploadTexture(m_passes.functions(), input, TextureEdge::Clamp);
    const auto across = createFramebuffer(m_passes.functions(), input.size());
    const auto down = createFramebuffer(m_passes.functions(), input.size());
    if (!across || !down)
        return {};

    const auto blurAlong = [&](GLuint from, QOpenGLFramebufferObject *to, float directionX, float directionY) {
        const QByteArray bytes =
            uniformBytes({{directionX, directionY, 1.0F / float(input.width()), 1.0F / float(input.height())},
                          {float(usedRadius), 0.0F, 0.0F, 0.0F}});
        return m_passes.drawPass(shaderId, {&from, 1}, to, bytes);
    };
    if (!blurAlong(texture.name(), across.get(), 1.0F, 0.0F) || !blurAlong(across->texture(), down.get(), 0.0F, 1.0F))
        return {};
    texture.reset();
    return readFramebuffer(m_passes.functions(), *down);
}

QImage OpenGLTextureRenderer::gaussianBlur(const QImage &image, double sigma)
{
    const QImage input = toStraightRgba(image);
    const double usedSigma = finiteOrZero(sigma);
    if (usedSigma < kSmallestBlur || input.isNull())
        return input;

    const CurrentContext current(m_context);
    if (!current || !hasBlurPrograms(input.size(), usedSigma, kGaussianWorkingSigma))
        return {};
    OwnedTexture texture = uploadTexture(m_passes.functions(), input, TextureEdge::Clamp);
    const auto blurred =
        blurTexture(m_passes, texture.name(), input.size(), usedSigma, kGaussianWorkingSigma, TextureEdge::Clamp, true);
    texture.reset(); // its memory serves the readback
    return blurred ? readFramebuffer(m_passes.functions(), *blurred) : QImage();
}

QImage OpenGLTextureRenderer::renderFilterShader(const QString &shaderId, const QSize &outputSize,
                                                 const QList<QImage> &images, const QByteArray &uniformBytes,
                                                 const FilterTextureFormats &)
{
    const QString fullId = libraryShaderId(shaderId);
    const FilterShaderDescriptor *descriptor = m_catalog.find(fullId);
    if (!descriptor) {
        qCWarning(lcTexture) << "Unknown filter shader" << shaderId;
        return {};
    }
    if (images.size() != descriptor->samplers.size() || !holdsUniforms(uniformBytes, *descriptor)) {
        qCWarning(lcTexture) << "Filter shader invocation mismatch" << shaderId << "samplers expected"
                             << descriptor->samplers.size() << "got" << images.size() << "uniforms expected"
                             << descriptor->uniforms.size() << "got" << uniformBytes.size() / kUniformVec4Bytes;
        return {};
    }
    if (!images.isEmpty())
        return runFilterPass(fullId, outputSize, images, uniformBytes);

    QImage nothing(1, 1, QImage::Format_RGBA8888); // a pass has at least one texture
    nothing.fill(Qt::transparent);
    return runFilterPass(fullId, outputSize, {nothing}, uniformBytes);
}

QImage OpenGLTextureRenderer::renderMaskedBlurFilterShader(const QString &shaderId, const QImage &source,
                                                           double sourceSigma, const QImage &mask, double maskSigma,
                                                           const QByteArray &uniformBytes,
                                                           const FilterTextureFormats &formats)
{
    const QString fullId = libraryShaderId(shaderId);
    const FilterShaderDescriptor *descriptor = m_catalog.find(fullId);
    if (!descriptor) {
        qCWarning(lcTexture) << "Unknown filter shader" << shaderId;
        return {};
    }
    if (descriptor->samplers.size() != kMaskedBlurSamplers || !holdsUniforms(uniformBytes, *descriptor)) {
        qCWarning(lcTexture) << "Masked blur shader invocation mismatch" << shaderId << "samplers expected"
                             << descriptor->samplers.size() << "got 3 uniforms expected" << descriptor->uniforms.size()
                             << "got" << uniformBytes.size() / kUniformVec4Bytes;
        return {};
    }
    const double usedSourceSigma = std::max(finiteOrZero(sourceSigma), 0.0);
    const double usedMaskSigma = std::max(finiteOrZero(maskSigma), 0.0);
    if (formats.inputFormat(0) != formats.inputFormat(1)) {
        // Pictures of two formats cannot share one chain of passes: each is blurred by itself.
        return renderFilterShader(shaderId, source.size(),
                                  {source, gaussianBlur(source, usedSourceSigma), gaussianBlur(mask, usedMaskSigma)},
                                  uniformBytes, formats);
    }
    return runMaskedBlur(fullId, source, usedSourceSigma, mask, usedMaskSigma, uniformBytes);
}

/// Links what blurTexture will need, so that a broken shader costs no transfer.
bool OpenGLTextureRenderer::hasBlurPrograms(const QSize &size, double sigma, double maxWorkingSigma)
{
    const bool rescales = BlurPlan::make(size, sigma, maxWorkingSigma).workingSize != size;
    return m_passes.filterProgram(u"gaussianBlur"_s) && (!rescales || m_passes.filterProgram(u"textureCopy"_s));
}

QImage OpenGLTextureRenderer::runFilterPass(const QString &shaderId, const QSize &outputSize,
                                            const QList<QImage> &images, const QByteArray &uniformBytes)
{
    if (images.isEmpty() || outputSize.isEmpty())
        return {};
    QList<QImage> inputs;
    for (const QImage &image : images) {
        inputs.append(toStraightRgba(image));
        if (inputs.last().isNull())
            return {};
    }

    const CurrentContext current(m_context);
    if (!current || !m_passes.filterProgram(shaderId))
        return {};
    std::vector<OwnedTexture> textures;
    std::vector<GLuint> names;
    for (const QImage &input : inputs) {
        textures.push_back(uploadTexture(m_passes.functions(), input, TextureEdge::Clamp));
        names.push_back(textures.back().name());
    }
    const auto target = createFramebuffer(m_passes.functions(), outputSize);
    if (!m_passes.drawPass(shaderId, names, target.get(), uniformBytes))
        return {};
    textures.clear(); // their memory serves the readback
    return readFramebuffer(m_passes.functions(), *target);
}

QImage OpenGLTextureRenderer::runMaskedBlur(const QString &shaderId, const QImage &source, double sourceSigma,
                                            const QImage &mask, double maskSigma, const QByteArray &uniformBytes)
{
    const QImage sourceInput = toStraightRgba(source);
    const QImage maskInput = toStraightRgba(mask);
    if (sourceInput.isNull() || maskInput.isNull())
        return {};
    const CurrentContext current(m_context);
    if (!current || !m_passes.filterProgram(shaderId))
        return {};

    // An image and its blur; the untouched texture stands in for a blur too small to see.
    struct Input
    {
        OwnedTexture texture;
        std::unique_ptr<QOpenGLFramebufferObject> blurred;
        GLuint blurredName = 0;
    };
    const auto prepare = [&](const QImage &image, double sigma, TextureEdge edge) {
        Input input{uploadTexture(m_passes.functions(), image, edge), nullptr, 0};
        input.blurredName = input.texture.name();
        if (sigma >= kSmallestBlur) {
            input.blurred =
                blurTexture(m_passes, input.texture.name(), image.size(), sigma, kMaskedBlurWorkingSigma, edge, false);
            input.blurredName = input.blurred ? input.blurred->texture() : 0;
        }
        return input;
    };
    const Input sharp = prepare(sourceInput, sourceSigma, TextureEdge::Clamp);
    const Input masked = prepare(maskInput, maskSigma, TextureEdge::TransparentBorder);
    const auto target = createFramebuffer(m_passes.functions(), sourceInput.size());
    const GLuint names[] = {sharp.texture.name(), sharp.blurredName, masked.blurredName};
    if (!m_passes.drawPass(shaderId, names, target.get(), uniformBytes))
        return {};
    return readFramebuffer(m_passes.functions(), *target);
}

} // namespace zm
