#include "io/document/layer_content.h"

namespace zm {

namespace {

std::unique_ptr<Layer> makeLayer(const ImageContent &content, const QString &name, const QUuid &id)
{
    auto layer = std::make_unique<ImageLayer>(content.source, name, id);
    layer->setRasterSurfacePolicy(content.policy);
    layer->setRasterSelection(content.selection);
    return layer;
}

std::unique_ptr<Layer> makeLayer(const ShapeContent &content, const QString &name, const QUuid &id)
{
    return std::make_unique<ShapeLayer>(content.shape.geometry, content.shape.size, content.stroke, content.fill, name,
                                        id);
}

std::unique_ptr<Layer> makeLayer(const TextLayerState &state, const QString &name, const QUuid &id)
{
    return std::make_unique<TextLayer>(state.blocks, state.textWidth, name, id);
}

} // namespace

std::unique_ptr<Layer> layerFrom(LayerContent content, const QString &name, const QUuid &id)
{
    return std::visit([&](const auto &alternative) { return makeLayer(alternative, name, id); }, content);
}

} // namespace zm
