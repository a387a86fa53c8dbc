#include "rendering/pass_chain.h"

#include "rendering/blur_plan.h"
#include "rendering/uniform_bytes.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kMaximumBoxRadius = 16.0;
constexpr double kGaussianWorkingSigma = 10.0;
constexpr double kReducedWorkingSigma = 4.0; // the sampler of a later pass enlarges, so less is enough

bool isTooSmallToSee(double blur)
{
    return !std::isfinite(blur) || blur < kSmallestBlur;
}

} // namespace

PassChain::Picture PassChain::source(const QImage &image, TextureEdge edge)
{
    const QImage picture = image.convertToFormat(QImage::Format_RGBA8888);
    return append(picture.size(), Source{picture, edge});
}

PassChain::Picture PassChain::shader(const QString &shaderId, const QSize &size, const QList<Picture> &inputs,
                                     const QByteArray &uniforms)
{
    return append(size, Pass{shaderId, inputs, uniforms});
}

PassChain::Picture PassChain::libraryShader(const QString &shaderId, const QSize &size, const QList<Picture> &inputs,
                                            const QByteArray &uniforms)
{
    return shader(u"fx/%1"_s.arg(shaderId), size, inputs, uniforms);
}

PassChain::Picture PassChain::gaussianBlur(Picture input, double sigma)
{
    return blur(input, sigma, kGaussianWorkingSigma, TextureEdge::Clamp, true);
}

PassChain::Picture PassChain::reducedBlur(Picture input, double sigma, TextureEdge edge)
{
    return blur(input, sigma, kReducedWorkingSigma, edge, false);
}

PassChain::Picture PassChain::boxBlur(Picture input, double radius)
{
    if (isTooSmallToSee(radius))
        return input;
    const float usedRadius = float(std::min(radius, kMaximumBoxRadius));
    const auto along = [&](Picture from, float directionX, float directionY) {
        const QSize pixels = size(from);
        return shader(
            u"boxBlur"_s, pixels, {from},
            uniformBytes({{directionX, directionY, 1.0F / float(pixels.width()), 1.0F / float(pixels.height())},
                          {usedRadius, 0.0F, 0.0F, 0.0F}}));
    };
    return along(along(input, 1.0F, 0.0F), 0.0F, 1.0F);
}

QSize PassChain::size(Picture picture) const
{
    return m_steps[qsizetype(picture)].size;
}

PassChain::Picture PassChain::append(const QSize &size, const std::variant<Source, Pass, Blur> &work)
{
    m_steps.append({size, work});
    return Picture(m_steps.size() - 1);
}

PassChain::Picture PassChain::blur(Picture input, double sigma, double maximumWorkingSigma, TextureEdge edge,
                                   bool restoreSize)
{
    if (isTooSmallToSee(sigma))
        return input;
    const QSize pixels =
        restoreSize ? size(input) : BlurPlan::make(size(input), sigma, maximumWorkingSigma).workingSize;
    return append(pixels, Blur{input, sigma, maximumWorkingSigma, edge, restoreSize});
}

} // namespace zm
