#pragma once

#include <QImage>

namespace zm {

/// A picture and a map in one picture, for shaders with a single sampler; common/stacked.glsl reads it. The map lies
/// below the picture, or beside it where `maximumSide` pixels, a texture's longest side, leave no room below. RGBA8888;
/// null when neither way has room or one of the two is null.
QImage stackedPicture(const QImage &picture, const QImage &map, int maximumSide);

/// The size of a map with one pixel for a square of `reduction` pixels of a picture; those at the rim may be cut.
QSize mapSize(const QSize &picture, int reduction);

} // namespace zm
