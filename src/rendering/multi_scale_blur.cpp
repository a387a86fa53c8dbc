#include "rendering/multi_scale_blur.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

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

/// A pass into a new framebuffer of `size`; null on failure.
std::unique_ptr<QOpenGLFramebufferObject> drawn(FilterPassDrawer &passes, const QString &shaderId, GLuint texture,
                                                const QSize &size, TextureEdge edge, const QByteArray &bytes = {})
{
    auto target = createFramebuffer(passes.functions(), size, edge);
    if (!passes.drawPass(shaderId, {&texture, 1}, target.get(), bytes))
        return nullptr;
    return target;
}

} // namespace

std::unique_ptr<QOpenGLFramebufferObject> blurTexture(FilterPassDrawer &passes, GLuint texture, const QSize &size,
                                                      double sigma, double maxWorkingSigma, TextureEdge edge,
                                                      bool restoreSize)
{
    if (texture == 0 || size.isEmpty() || !std::isfinite(sigma) || sigma < kSmallestBlur)
        return nullptr;
    const BlurPlan plan = BlurPlan::make(size, sigma, maxWorkingSigma);
    const QSize &working = plan.workingSize;

    // Each step lets go of the one before, so that its memory serves the next.
    std::unique_ptr<QOpenGLFramebufferObject> current;
    for (QSize step = size; step != working;) {
        step = reduced(step, working);
        current = drawn(passes, u"textureCopy"_s, current ? current->texture() : texture, step, edge);
        if (!current)
            return nullptr;
    }

    const auto blurAlong = [&](float directionX, float directionY) {
        const QByteArray bytes =
            uniformBytes({{directionX, directionY, 1.0F / float(working.width()), 1.0F / float(working.height())},
                          {float(plan.workingSigma), float(plan.kernelRadius), 0.0F, 0.0F}});
        current = drawn(passes, u"gaussianBlur"_s, current ? current->texture() : texture, working, edge, bytes);
        return current != nullptr;
    };
    if (!blurAlong(1.0F, 0.0F) || !blurAlong(0.0F, 1.0F))
        return nullptr;

    for (QSize step = working; restoreSize && step != size;) {
        step = enlarged(step, size);
        current = drawn(passes, u"textureCopy"_s, current->texture(), step, edge);
        if (!current)
            return nullptr;
    }
    return current;
}

} // namespace zm
