#include "filters/filter_render.h"

#include "values/parameter_definition.h"

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

constexpr double kSmallestRenderScale = 0.01;

} // namespace

double renderScale(const QSize &imageSize, const QRectF &bounds)
{
    if (bounds.isEmpty())
        return 1.0;
    const double scale = std::min(imageSize.height() / bounds.height(), imageSize.width() / bounds.width());
    return std::max(scale, kSmallestRenderScale);
}

QPointF FilterRenderRequest::placeInLayer(double x, double y) const
{
    if (bounds.isEmpty())
        return {x * image.width(), y * image.height()};
    const QRectF box = layerBox();
    return {(box.left() - bounds.left() + x * box.width()) / bounds.width() * image.width(),
            (box.top() - bounds.top() + y * box.height()) / bounds.height() * image.height()};
}

double FilterRenderRequest::diagonalPixels(const QString &key, double fallback) const
{
    return number(key, fallback) * std::hypot(image.width(), image.height()) / 1000.0;
}

int FilterRenderRequest::choice(const QString &key, std::initializer_list<QLatin1StringView> options) const
{
    const QString chosen = optionText(parameters.entries().value(key)).value_or(QString());
    const auto found = std::ranges::find(options, chosen);
    return found == options.end() ? 0 : int(found - options.begin());
}

FilterRenderResult FilterRenderRequest::singlePass(const LibraryUniformBlock &block) const
{
    const FilterTextureFormats formats{inputFormat, {inputFormat}, outputFormat};
    return result(renderer->renderFilterShader(block.shaderId(), size(), {image}, block.bytes(), formats));
}

FilterRenderResult FilterRenderRequest::chained(const PassChain &chain, PassChain::Picture picture) const
{
    return result(renderer->renderChain(chain, picture));
}

PassChain::Picture addPass(PassChain &chain, const LibraryUniformBlock &block, const QList<PassChain::Picture> &inputs)
{
    return chain.libraryShader(block.shaderId(), chain.size(inputs.first()), inputs, block.bytes());
}

} // namespace zm
