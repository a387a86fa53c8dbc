#pragma once

#include "filters/library_filter.h"

namespace zm {

/// Lays a tinted pattern over a picture, inside or outside a soft shape. The pattern is the alpha of a tile, laid three
/// times, each time moved a little, in a colour of its own. A family: members differ in their descriptions and tiles.
class TintedMaskOverlayFilter final : public LibraryFilter
{
public:
    /// The textures of a family lie in the folder of its name.
    TintedMaskOverlayFilter(const QString &id, const QString &maskTextureFamily);

    FilterRenderResult render(const FilterRenderRequest &request) const override;

private:
    const QString m_maskTextureFamily;
};

} // namespace zm
