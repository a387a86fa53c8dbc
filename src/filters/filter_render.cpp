#include "filters/filter_render.h"

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

int FilterRenderRequest::choice(const QString &key) const
{
    const ParameterDefinition *definition = findParameter(controls, key);
    const auto *control = definition ? std::get_if<ChoiceParameter>(definition) : nullptr;
    const std::optional<QString> chosen = optionText(parameters.entries().value(key));
    if (!control || !chosen)
        return 0;
    const auto found = std::ranges::find(control->options, chosen,
                                         [](const ParameterOption &option) { return optionText(option.value); });
    return found == control->options.end() ? 0 : int(found - control->options.begin());
}

QLineF FilterRenderRequest::line(const QString &key) const
{
    const GradientPosition position = parameters.gradientPosition(known(key), {});
    return {placeInLayer(position.x1, position.y1), placeInLayer(position.x2, position.y2)};
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
