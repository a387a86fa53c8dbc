#pragma once

#include "scene/scene_snapshot.h"

#include <QImage>

namespace zm {

/// The picture of rect at scale 1, shared and not painted, when the topmost layer alone decides every pixel of it: an
/// opaque image that is not scaled, not blended, and covers rect exactly. A null image otherwise, and then rect has to
/// be rendered. Bit for bit what rendering gives; a photograph is thus exported without a second buffer of its size.
QImage imageCovering(const SceneSnapshot &snapshot, const QRectF &rect);

/// The same pixels read as another format of the same depth, without a copy and without metadata such as a density or a
/// colour space.
QImage pixelsReadAs(const QImage &image, QImage::Format format);

} // namespace zm
