#pragma once

#include "scene/scene_snapshot.h"

#include <QImage>
#include <QList>
#include <QRectF>

namespace zm {

/// A rendered piece of the scene.
struct SceneTile
{
    /// Document units.
    QRectF sceneRect;
    /// Pixels for each document unit.
    double scale = 1.0;
    /// QImage::Format_RGBA8888.
    QImage image;
};

/// A side that every supported GPU accepts as a texture.
inline constexpr int kMaximumTileSide = 8192;
/// The least scale that anything is rendered at.
inline constexpr double kMinimumRenderScale = 0.01;

/// The longest side of a tile: what the GPU takes as a texture, at most kMaximumTileSide. Asks the renderer, so on the
/// main thread only.
int maxTileSize(const RenderServices *services);

// All of the following may be called from any thread. An empty rectangle stands for the document's; a scale under
// kMinimumRenderScale is raised to it. A picture too large to allocate is null.

/// Paints what lies in rect into a picture of ceil(size * scale) pixels. With fixedBounds everything is clipped to the
/// document and transparent around it; without, the background fills the picture. smooth interpolates layers between
/// their pixels. showBounds outlines the document under the layers.
QImage renderSceneTile(const SceneSnapshot &snapshot, const QRectF &rect, bool fixedBounds, double scale, bool smooth,
                       bool showBounds);

/// The scene in rect, grown to whole pixels of this scale, cut row by row into tiles of at most maxTile pixels a side.
/// Above a scale of 1 a layer's pixels stay crisp.
QList<SceneTile> renderSceneTiles(const SceneSnapshot &snapshot, const QRectF &rect, bool fixedBounds, double scale,
                                  int maxTile, bool showBounds);

/// The flattened document, clipped, without the outline: what is exported.
QImage renderDocumentImage(const SceneSnapshot &snapshot, double scale);

/// A part of the unlimited canvas, without the outline.
QImage renderSceneRegion(const SceneSnapshot &snapshot, const QRectF &rect, double scale);

} // namespace zm
