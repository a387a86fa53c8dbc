#pragma once

#include "values/object_transform.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QString>
#include <QUuid>

namespace zm {

class Document;
struct RenderServices;

/// A visible layer as it is composed: the pixels after its effects, and where they go.
struct SceneRenderItem
{
    QUuid objectId;
    ObjectTransform transform;
    double opacity = 1.0;
    QString blendMode;
    /// QImage::Format_RGBA8888; null where nothing could be rendered, and then nothing is painted.
    QImage image;
    /// What image covers, in the layer's units: larger than the layer, and not at (0, 0), when an effect grew it.
    QSizeF imageSize;
    QPointF imageOrigin;
    /// The layer's own size, which the anchor of the transform refers to.
    QSizeF contentSize;
};

/// A document frozen for rendering. A copy shares the pixels, so a worker thread can paint from one while the document
/// is edited.
struct SceneSnapshot
{
    QSizeF documentSize{1.0, 1.0};
    QColor backgroundColor = Qt::white;
    /// Visible layers, bottom first.
    QList<SceneRenderItem> items;
};

/// Takes every visible layer but excludedId, and runs its effects over its cached content. Null services mean that
/// there is no GPU. On the main thread only.
SceneSnapshot buildSceneSnapshot(const Document &document, const QUuid &excludedId, const RenderServices *services);

/// Centred on the origin.
QRectF documentRect(const SceneSnapshot &snapshot);

/// From the layer's own units to document units.
QTransform itemMatrix(const SceneRenderItem &item);

/// The rectangle that the item's image covers, in the layer's own units.
QRectF imageRect(const SceneRenderItem &item);

/// What the item's image covers, in document units.
QRectF itemBounds(const SceneRenderItem &item);

/// Null when the snapshot has no item of this id.
const SceneRenderItem *findItem(const SceneSnapshot &snapshot, const QUuid &id);

/// Document units; empty when the snapshot has no item of this id.
QRectF objectBounds(const SceneSnapshot &snapshot, const QUuid &id);

/// What all items cover together, or the document when they cover nothing.
QRectF unitedItemBounds(const SceneSnapshot &snapshot);

/// The same, rounded out to whole units.
QRectF contentBounds(const SceneSnapshot &snapshot);

} // namespace zm
