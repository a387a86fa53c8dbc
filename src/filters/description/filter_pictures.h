#pragma once

#include <QString>

namespace zm {

// Where the interface finds the generated pictures of effects, as "qrc:" addresses.

/// The picture of an effect in the picker; the wand's icon for an effect without one.
QString filterThumbnailSource(const QString &filterId);

/// The larger picture of the tool tip, which a few effects have; empty for the others.
QString filterPreviewSource(const QString &filterId);

/// The picture of a texture to choose; the wand's icon where there is none.
QString texturePreviewSource(const QString &option);

} // namespace zm
