#include "filters/craft/patch_smoothing.h"

#include "filters/craft/coverage.h"

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

constexpr double kLargestEnlargement = 2.0;
// A sigma of this many pixels of the reduced picture keeps fine patterns from turning into coarse ones.
constexpr double kReductionSigma = 0.45;

} // namespace

PassChain::Picture addSmoothing(PassChain &chain, PassChain::Picture input, const QSize &size, QPointF direction,
                                double radius, double detail)
{
    LibraryUniformBlock block(u"paper-diorama-smooth"_s);
    block.setSize("u_size"_L1, size);
    block.setVec2("u_direction"_L1, direction.x(), direction.y());
    block.setFloat("u_radiusPx"_L1, radius);
    block.setFloat("u_detail"_L1, detail);
    return chain.libraryShader(block.shaderId(), size, {input}, block.bytes());
}

PassChain::Picture addFlatPatches(PassChain &chain, PassChain::Picture input, double radius, double detail)
{
    constexpr double kDiagonal = std::numbers::sqrt2 / 2.0;
    const QSize size = chain.size(input);
    for (const QPointF direction :
         {QPointF(1.0, 0.0), QPointF(0.0, 1.0), QPointF(kDiagonal, kDiagonal), QPointF(kDiagonal, -kDiagonal)}) {
        input = addSmoothing(chain, input, size, direction, radius, detail);
    }
    return input;
}

PassChain::Picture addWorkingCopy(PassChain &chain, const FilterRenderRequest &request, double feature, double pixels)
{
    const double scale = std::min(pixels / std::max(feature, 0.01), kLargestEnlargement);
    const QSize size = (QSizeF(request.size()) * scale).toSize().expandedTo({1, 1});
    const PassChain::Picture input = chain.source(request.image);
    if (scale >= 1.0)
        return addSmoothing(chain, input, size, {1.0, 0.0}, 0.0, 1.0);

    const double reach = kReductionSigma / scale;
    if (!hasTransparency(request.image))
        return addSmoothing(chain, chain.reducedBlur(input, reach), size, {1.0, 0.0}, 0.0, 1.0);
    const PassChain::Picture across =
        addSmoothing(chain, input, {size.width(), request.size().height()}, {1.0, 0.0}, 1.0, 0.0);
    return addSmoothing(chain, across, size, {0.0, 1.0}, 1.0, 0.0);
}

PassChain::Picture addEnlargement(PassChain &chain, PassChain::Picture input, const QSize &size)
{
    const double radius = 1.4 * size.width() / chain.size(input).width();
    const QSize wide(size.width(), chain.size(input).height()); // one axis after the other: fewer pixels
    return addSmoothing(chain, addSmoothing(chain, input, wide, {1.0, 0.0}, radius, 0.0), size, {0.0, 1.0}, radius,
                        0.0);
}

FilterRenderResult chainedWithAlpha(const FilterRenderRequest &request, const PassChain &chain,
                                    PassChain::Picture picture)
{
    QImage rendered = request.renderer->renderChain(chain, picture);
    if (!rendered.isNull())
        copyAlpha(rendered, request.image);
    return request.result(rendered);
}

} // namespace zm
