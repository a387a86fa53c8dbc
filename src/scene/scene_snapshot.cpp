#include "scene/scene_snapshot.h"

#include "document/document.h"
#include "filters/filter_stack.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace zm {

namespace {

SceneRenderItem renderItem(const Layer &layer, const RenderServices *services)
{
    const RenderedContent content = layer.renderedContent(services);
    SceneRenderItem item{layer.id(),    layer.transform(), layer.opacity(), layer.blendMode(),
                         content.image, content.size,      QPointF(),       content.size};
    if (layer.filters().isEmpty())
        return item;
    const auto *imageLayer = dynamic_cast<const ImageLayer *>(&layer);
    const std::optional<EditablePath> selection = imageLayer ? imageLayer->rasterSelection() : std::nullopt;
    const quint64 revision = layer.revision();
    const FilterRenderResult filtered =
        evaluateFilterStack(content.image, content.size, layer.filters(), services, selection,
                            revision == std::numeric_limits<quint64>::max() ? revision : revision + 1);
    item.image = filtered.image;
    item.imageSize = filtered.bounds.size();
    item.imageOrigin = filtered.bounds.topLeft();
    return item;
}

} // namespace

SceneSnapshot buildSceneSnapshot(const Document &document, const QUuid &excludedId, const RenderServices *services)
{
    SceneSnapshot snapshot{document.size(), document.backgroundColor(), {}};
    snapshot.items.reserve(document.objectCount());
    for (qsizetype i = 0; i < document.objectCount(); ++i) {
        const auto *layer = dynamic_cast<const Layer *>(document.objectAt(i));
        if (layer && layer->isVisible() && layer->id() != excludedId)
            snapshot.items.append(renderItem(*layer, services));
    }
    return snapshot;
}

QRectF documentRect(const SceneSnapshot &snapshot)
{
    const QSizeF size = snapshot.documentSize;
    return {-size.width() / 2.0, -size.height() / 2.0, size.width(), size.height()};
}

QTransform itemMatrix(const SceneRenderItem &item)
{
    return item.transform.matrix(QRectF(QPointF(), item.contentSize));
}

QRectF imageRect(const SceneRenderItem &item)
{
    return {item.imageOrigin, item.imageSize};
}

QRectF itemBounds(const SceneRenderItem &item)
{
    return itemMatrix(item).mapRect(imageRect(item));
}

const SceneRenderItem *findItem(const SceneSnapshot &snapshot, const QUuid &id)
{
    const auto item = std::ranges::find(snapshot.items, id, &SceneRenderItem::objectId);
    return item == snapshot.items.end() ? nullptr : &*item;
}

QRectF objectBounds(const SceneSnapshot &snapshot, const QUuid &id)
{
    const SceneRenderItem *item = findItem(snapshot, id);
    return item ? itemBounds(*item) : QRectF();
}

QRectF unitedItemBounds(const SceneSnapshot &snapshot)
{
    QRectF bounds;
    for (const SceneRenderItem &item : snapshot.items) {
        if (const QRectF itemRect = itemBounds(item); !itemRect.isEmpty())
            bounds |= itemRect;
    }
    return bounds.isEmpty() ? documentRect(snapshot) : bounds;
}

QRectF contentBounds(const SceneSnapshot &snapshot)
{
    const QRectF bounds = unitedItemBounds(snapshot);
    const double left = std::floor(bounds.left());
    const double top = std::floor(bounds.top());
    return {left, top, std::max(std::ceil(bounds.right()) - left, 1.0),
            std::max(std::ceil(bounds.bottom()) - top, 1.0)};
}

} // namespace zm
