#include "rendering/pass_chain.h"

#include "rendering/blur_plan.h"
#include "rendering/uniform_bytes.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kMaximumBoxRadius = 16.0;
constexpr double kGaussianWorkingSigma = 10.0;

bool isTooSmallToSee(double blur)
{
    return !std::isfinite(blur) || blur < kSmallestBlur;
}

/// One step towards a smaller size: half of each side, rounded up.
QSize reduced(const QSize &current, const QSize &goal)
{
    const auto side = [](int from, int to) { return std::max({to, (from + 1) / 2, 1}); };
    return {side(current.width(), goal.width()), side(current.height(), goal.height())};
}

/// One step towards a larger size: each side doubled.
QSize enlarged(const QSize &current, const QSize &goal)
{
    const auto side = [](int from, int to) { return std::min(std::max(from * 2, 1), to); };
    return {side(current.width(), goal.width()), side(current.height(), goal.height())};
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

PassChain::Picture PassChain::reducedBlur(Picture input, double sigma, TextureEdge edge, double workingSigma)
{
    return blur(input, sigma, workingSigma, edge, false);
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

PassChain::Picture PassChain::append(const QSize &size, const std::variant<Source, Pass, Stack> &work)
{
    m_steps.append({size, work});
    return Picture(m_steps.size() - 1);
}

PassChain::Picture PassChain::keepRed(Picture picture)
{
    if (auto *pass = std::get_if<Pass>(&m_steps[qsizetype(picture)].work))
        pass->keepsRedOnly = true;
    return picture;
}

PassChain::Picture PassChain::stacked(Picture picture, Picture map, int maximumSide)
{
    const QSize top = size(picture);
    const QSize bottom = size(map);
    const bool below = top.height() + bottom.height() <= maximumSide;
    QSize whole = below ? QSize(std::max(top.width(), bottom.width()), top.height() + bottom.height())
                        : QSize(top.width() + bottom.width(), top.height());
    // The reader tells the two ways by the height: beside the picture nothing may be taller.
    const bool fits =
        std::max(whole.width(), whole.height()) <= maximumSide && (below || bottom.height() <= top.height());
    if (!fits || top.isEmpty() || bottom.isEmpty())
        whole = {};
    return append(whole, Stack{{picture, map}, below ? QPoint(0, top.height()) : QPoint(top.width(), 0)});
}

PassChain::Picture PassChain::blur(Picture input, double sigma, double maximumWorkingSigma, TextureEdge edge,
                                   bool restoreSize)
{
    if (isTooSmallToSee(sigma))
        return input;
    const auto *source = std::get_if<Pass>(&m_steps[qsizetype(input)].work);
    const bool keepsRedOnly = source && source->keepsRedOnly;
    const auto drawn = [&](const QString &shaderId, const QSize &pixels, const QByteArray &uniforms = {}) {
        input = append(pixels, Pass{shaderId, {input}, uniforms, edge, keepsRedOnly});
    };

    const QSize original = size(input);
    const BlurPlan plan = BlurPlan::make(original, sigma, maximumWorkingSigma);
    const QSize &working = plan.workingSize;
    for (QSize step = original; step != working;)
        drawn(u"textureCopy"_s, step = reduced(step, working));
    for (const auto &[x, y] : {std::pair(1.0F, 0.0F), std::pair(0.0F, 1.0F)}) {
        drawn(u"gaussianBlur"_s, working,
              uniformBytes({{x, y, 1.0F / float(working.width()), 1.0F / float(working.height())},
                            {float(plan.workingSigma), float(plan.kernelRadius), 0.0F, 0.0F}}));
    }
    for (QSize step = working; restoreSize && step != original;)
        drawn(u"textureCopy"_s, step = enlarged(step, original));
    return input;
}

} // namespace zm
